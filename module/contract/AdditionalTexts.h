#pragma once

#include "module/parts/OpenContract.h"
#include "module/ui/Layout.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"

#include <array>
#include <string>

namespace tellurix::contract {

/// The frame of the contract editor with the three additional texts. Each is written when its box is
/// left, and what a failure has left unwritten before the editor closes.
class AdditionalTexts {
public:
    /// @param opener the button that shows the frame and gets the focus back when it is hidden
    AdditionalTexts(ui::Form& form, ui::Button& opener);

    ui::Layout layout();
    /// Begins with another contract: the frame is hidden.
    void open(parts::OpenContract contract);
    /// Shows the texts of the contract.
    void load();
    /// Writes what the frame holds and hides it; where that is refused and the user does not discard it, it
    /// stays.
    /// @return false when it was not shown
    bool close();
    /// Writes what differs from the database.
    void write();
    /// Writes what is still unwritten. Where that fails the user is asked once whether to discard it.
    /// @return true when he wants to go back to it
    bool keepsRefused();

private:
    /// An additional text: its column, the box that edits it, and what the database has.
    struct Text {
        const char* column;
        ui::TextBox& box;
        std::string written;
    };

    void toggle();
    void show();
    void write(Text& text);

    parts::OpenContract contract_;
    ui::Button& opener_;

    ui::Frame picZusatzText;
    ui::Label lblZusatz;
    ui::TextBox txtZusatz;
    std::array<ui::Label, 2> lblZusatzText;
    std::array<ui::TextBox, 2> txtZusatzText;
    ui::Button cmdZusatzText;

    std::array<Text, 3> texts_;
};

} // namespace tellurix::contract
