#include "module/parts/EditMode.h"
#include "module/ui/Form.h"
#include "module/ui/controls/TextBox.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using State = parts::EditMode::State;

/// An area with all five buttons, a list and a field; and one that knows no rows.
struct Areas final : ui::Form {
    Areas() : Form("Areas") {
        setLayout(ui::column({lstZeilen, txtFeld, btnNeu, btnBearbeiten, btnSpeichern, btnAbbrechen,
                              btnLoschen, btnBearbeiten1, btnSpeichern1}));
    }
    ui::Grid lstZeilen{*this, "lstZeilen"};
    ui::TextBox txtFeld{*this, "txtFeld"};
    ui::Button btnNeu{*this, "btnNeu"};
    ui::Button btnBearbeiten{*this, "btnBearbeiten"};
    ui::Button btnSpeichern{*this, "btnSpeichern"};
    ui::Button btnAbbrechen{*this, "btnAbbrechen"};
    ui::Button btnLoschen{*this, "btnLoschen"};
    ui::Button btnBearbeiten1{*this, "btnBearbeiten1"};
    ui::Button btnSpeichern1{*this, "btnSpeichern1"};

    bool hasRow = true;
    parts::EnteredChanges changes;
    parts::EditMode rows{{.create = &btnNeu,
                          .edit = &btnBearbeiten,
                          .save = &btnSpeichern,
                          .cancel = &btnAbbrechen,
                          .remove = &btnLoschen},
                         {.inView = {&lstZeilen}, .whileEdited = {&txtFeld}, .changes = &changes},
                         [this] { return hasRow; }};
    parts::EditMode settings{{.edit = &btnBearbeiten1, .save = &btnSpeichern1}, {}, [] { return true; }};
};

TEST(EditMode, SaysWhatCanBeUsedWhen) {
    Areas areas;
    const auto usable = [&areas] {
        std::string names;
        for (const ui::Control* control : areas.controls())
            if (control->enabled()) names += control->name() + " ";
        return names;
    };
    const std::string other = "btnBearbeiten1 ";
    struct Case {
        const char* rule;
        State state;
        bool hasRow;
        const char* usable;
    };
    const Case cases[] = {
        {"a row can be begun, edited and removed", State::view, true,
         "lstZeilen btnNeu btnBearbeiten btnLoschen "},
        {"without a row it can only be begun", State::view, false, "lstZeilen btnNeu "},
        {"what is edited can be saved or cancelled", State::edit, true, "txtFeld btnSpeichern btnAbbrechen "},
        {"what is new as well, with or without others", State::fresh, false,
         "txtFeld btnSpeichern btnAbbrechen "},
    };
    areas.settings.enter(State::view);
    for (const Case& c : cases) {
        areas.hasRow = c.hasRow;
        areas.rows.enter(c.state);
        EXPECT_EQ(usable(), c.usable + other) << c.rule;
        EXPECT_EQ(areas.rows.viewing(), c.state == State::view) << c.rule;
    }
    areas.rows.enter(State::view);
    areas.hasRow = true;
    areas.rows.refresh();
    EXPECT_EQ(usable(), "lstZeilen btnNeu btnBearbeiten btnLoschen " + other) << "a row has come";
    areas.settings.enter(State::edit);
    EXPECT_EQ(usable(), "lstZeilen btnNeu btnBearbeiten btnLoschen btnSpeichern1 ")
        << "each area has its own";
    areas.rows.enter(State::edit);
    areas.changes.note(areas.txtFeld);
    EXPECT_TRUE(areas.changes.any());
    EXPECT_EQ(areas.txtFeld.changedBy(), ui::ChangedBy::user);
    areas.rows.enter(State::view);
    EXPECT_FALSE(areas.changes.any()) << "what was entered is saved or thrown away";
    EXPECT_EQ(areas.txtFeld.changedBy(), ui::ChangedBy::nobody);
    EXPECT_FALSE(areas.btnAbbrechen.causesValidation()) << "nobody has to correct a field to throw it away";
}

} // namespace
} // namespace tellurix::tests
