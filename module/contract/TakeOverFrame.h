#pragma once

#include "module/base/own_text.h"
#include "module/lines/TakeOver.h"
#include "module/parts/OpenContract.h"
#include "module/ui/Layout.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/ProgressBar.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::contract {

/// The frame of the contract editor in which the lines of another contract are taken over.
class TakeOverFrame {
public:
    /// @param tookOver called when lines were added
    TakeOverFrame(ui::Form& form, std::function<void()> tookOver);

    ui::Layout layout();
    /// Begins with another contract, which gets the lines; a source that was chosen is forgotten.
    void open(parts::OpenContract contract);

private:
    /// What a box shows, and the key that the host's list gave for it; empty for none.
    struct Choice {
        ui::TextBox& box;
        std::string text = {};
        std::string key = {};

        bool isCurrent() const { return box.text() == text; }
        void show(const std::string& shown, const std::string& of);
        /// The text stays in the box, to be looked up again.
        void forget();
    };

    void clear();
    host::HostServices& services() const { return *contract_.services; }
    host::KeyedLists::Limits limits() const { return {type_.key, contract_.id}; }
    void pickType();
    void pickSource();
    bool resolveType();
    /// Finds the contract whose name was typed, among those of the chosen type.
    /// @return false when there is none, or the user did not say which: he has been told
    bool resolveSource();
    bool isOfChosenType(std::int32_t contract);
    /// The contract that the user means of several with the same name, empty when he cancelled.
    std::string askWhich(const std::vector<std::string>& keys);
    std::optional<std::string> nameOf(std::int32_t contract);
    void takeOver();
    /// @return false
    bool refuse(ui::TextBox& box, const std::string& why);
    /// Whether the source is of the contract's own type, or the user wants its lines all the same.
    bool acceptsTypeOf(std::int32_t source);
    void copy(lines::TakeOver& lines);
    void tellTakenOver(int prices, int quantities);
    std::string words(base::OwnText text, const std::vector<std::string>& values = {}) const;

    parts::OpenContract contract_;
    std::function<void()> tookOver_;

    ui::Frame frmUbernehmen;
    ui::Label lblVertrag;
    ui::TextBox txtVertrag;
    ui::Label lblTypeOfVertrag;
    ui::TextBox txtTypeOfVertrag;
    ui::Button btnUbernehmen;
    ui::ProgressBar ProgressBar1;

    Choice source_;
    Choice type_; ///< the contract type that the choice of the source is limited to
};

} // namespace tellurix::contract
