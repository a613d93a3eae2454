#pragma once

#include "module/parts/fields/EnteredChanges.h"
#include "module/ui/Handlers.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"

#include <functional>
#include <vector>

namespace tellurix::parts {

/// View and edit mode of a screen, or of one area of it: five buttons of which an area may lack some,
/// and what can be used when.
///
/// While an area is looked at, a row can be begun, edited and removed; while one is edited, or a new
/// one is filled in, it can be saved and cancelled, and nothing else.
class EditMode {
public:
    enum class State { view, edit, fresh };

    /// Null for a button that the area does not have.
    struct Buttons {
        ui::Button* create = nullptr;
        ui::Button* edit = nullptr;
        ui::Button* save = nullptr;
        ui::Button* cancel = nullptr;
        ui::Button* remove = nullptr;
    };
    /// What else can be used when.
    struct Controls {
        std::vector<ui::Control*> inView = {};      ///< lists, filters, closing
        std::vector<ui::Control*> onRow = {};       ///< in view, where there is a row
        std::vector<ui::Control*> whileEdited = {}; ///< the fields
        EnteredChanges* changes = nullptr;          ///< into the fields: forgotten when editing ends
        ui::Grid* rows = nullptr; ///< in it Insert, F2 and Delete press create, edit and remove
    };

    /// @param hasRow whether there is a row to edit at the moment
    EditMode(Buttons buttons, Controls controls, std::function<bool()> hasRow);

    State state() const { return state_; }
    bool viewing() const { return state_ == State::view; }
    /// Into another state, or into the same one after rows have come or gone.
    void enter(State state);
    void refresh() { enter(state_); }
    /// Null where the area has none.
    ui::Button* cancelButton() const { return cancel_; }
    /// The next `enter` tells what can be used; until then nothing is done to a control.
    void reset() { state_ = State::view; }

    /// The buttons are as the state says.
    ui::Handlers<void()> onEnter;

private:
    Controls controls_;
    ui::Button* cancel_;
    std::function<bool()> hasRow_;
    State state_ = State::view;
};

} // namespace tellurix::parts
