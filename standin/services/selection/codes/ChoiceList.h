#pragma once

#include "module/ui/controls/Grid.h"
#include "module/ui/input/TextSorting.h"
#include "standin/services/selection/timber_attributes.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Makes a grid a list of codes of which several can be marked: Space or a double click marks the
/// current one or takes the mark away.
///
/// A marked code that is no longer offered stands in the list too, with a note: it stays chosen
/// until the user takes the mark away.
class ChoiceList {
public:
    struct Captions {
        std::string code;
        std::string name;
        std::string notOffered; ///< the note beside a code that is no longer offered
    };

    ChoiceList(ui::Grid& grid, Captions captions);

    /// With false, marking one code takes the mark from the others.
    void allowSeveral(bool several) { several_ = several; }
    /// Shows the codes and marks the chosen ones, whatever the case of their letters.
    void show(std::vector<Choice> choices, std::vector<std::string> chosen);
    /// The marked codes: those that were chosen already first, the others as they were marked.
    const std::vector<std::string>& chosen() const { return chosen_; }

    /// A mark was set or taken away.
    std::function<void()> onChange;
    /// Enter was pressed.
    std::function<void()> onEnter;

private:
    void toggle();
    void drawMarks();

    ui::Grid& grid_;
    ui::TextSorting sorting_{grid_, base::Locale::german()};
    Captions captions_;
    std::vector<std::string> chosen_;
    bool several_ = true;
};

/// The codes of a list as it is typed into a box: "FI, KI".
std::vector<std::string> codesOf(std::string_view list);

} // namespace tellurix::standin
