#include "module/ui/input/key_use.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using ui::ControlKind;
using ui::Key;
using ui::KeyTraits;
using ui::KeyUse;

TEST(KeyUse, IsTheSameOnEveryDisplay) {
    constexpr KeyTraits none;
    constexpr KeyTraits box{.kind = ControlKind::textBox};
    constexpr KeyTraits listening{.kind = ControlKind::textBox, .listens = true};
    constexpr KeyTraits longText{.kind = ControlKind::textBox, .listens = true, .severalLines = true};
    constexpr KeyTraits locked{.kind = ControlKind::textBox, .listens = true, .locked = true};
    constexpr KeyTraits combo{.kind = ControlKind::comboBox};
    constexpr KeyTraits grid{.kind = ControlKind::grid};
    constexpr KeyTraits listeningGrid{.kind = ControlKind::grid, .listens = true};
    constexpr KeyTraits button{.kind = ControlKind::button};
    constexpr Key a{'A'};
    constexpr Key b{'B'};
    struct Case {
        const char* rule;
        KeyTraits traits;
        ui::KeyDown key;
        KeyUse use;
    };
    for (const Case& row : std::vector<Case>{
             {"Tab goes on, wherever the focus is", none, {Key::tab}, KeyUse::rules},
             {"Ctrl+Tab does nothing", box, {.key = Key::tab, .ctrl = true}, KeyUse::nobody},
             {"Esc closes", none, {Key::escape}, KeyUse::rules},
             {"F4 opens a picker", box, {Key::f4}, KeyUse::rules},
             {"F4 opens a list", combo, {Key::f4}, KeyUse::native},
             {"with Alt a key is the display's", grid, {.key = Key::down, .alt = true}, KeyUse::native},
             {"a box is edited natively", box, {Key::backspace}, KeyUse::native},
             {"and moved in", box, {Key::down}, KeyUse::native},
             {"where the screen looks at keys, Backspace is asked about",
              listening,
              {Key::backspace},
              KeyUse::rules},
             {"a word is taken away natively",
              listening,
              {.key = Key::backspace, .ctrl = true},
              KeyUse::native},
             {"moving is told as well", listening, {.key = Key::home, .ctrl = true}, KeyUse::overheard},
             {"up and down are the screen's", listening, {Key::down}, KeyUse::rules},
             {"but in a longer text the box's", longText, {Key::pageDown}, KeyUse::native},
             {"a letter is told before its character", listening, {a}, KeyUse::overheard},
             {"undoing is the rules' where they see what is typed",
              KeyTraits{.kind = ControlKind::textBox, .filtered = true},
              {.key = Key{'Z'}, .ctrl = true},
              KeyUse::rules},
             {"else the display's", box, {.key = Key{'Z'}, .ctrl = true}, KeyUse::native},
             {"copying is not", listening, {.key = a, .ctrl = true}, KeyUse::native},
             {"nor what a locked box does not take", locked, {a}, KeyUse::native},
             {"a choice moves by the rules", combo, {Key::end}, KeyUse::rules},
             {"what empties a choice is the screen's, if it looks at keys",
              KeyTraits{.kind = ControlKind::comboBox, .listens = true},
              {Key::del},
              KeyUse::rules},
             {"letters look for an item natively", combo, {a}, KeyUse::native},
             {"a current cell moves by the rules", grid, {.key = Key::home, .ctrl = true}, KeyUse::rules},
             {"a row is edited by the rules", grid, {Key::f2}, KeyUse::rules},
             {"and all rows marked", grid, {.key = a, .ctrl = true}, KeyUse::rules},
             {"a table has no other keys", grid, {b}, KeyUse::native},
             {"unless the screen looks at them", listeningGrid, {b}, KeyUse::overheard},
             {"without Ctrl: copying is the display's",
              listeningGrid,
              {.key = b, .ctrl = true},
              KeyUse::native},
             {"F1 shows the keys, wherever the focus is", none, {Key::f1}, KeyUse::rules},
             {"Ctrl+S saves", box, {.key = Key{'S'}, .ctrl = true}, KeyUse::rules},
             {"an S is typed", box, {Key{'S'}}, KeyUse::native},
             {"a blank presses", button, {Key::space}, KeyUse::rules},
             {"arrows do not", button, {Key::down}, KeyUse::native},
         }) {
        EXPECT_EQ(static_cast<int>(ui::keyUse(row.traits, row.key)), static_cast<int>(row.use)) << row.rule;
    }
    EXPECT_TRUE(ui::actsOnce(box, Key::enter));
    EXPECT_TRUE(ui::actsOnce(button, Key::space));
    EXPECT_FALSE(ui::actsOnce(box, Key::space)) << "blanks are typed";
    EXPECT_FALSE(ui::actsOnce(grid, Key::down));
    EXPECT_TRUE(ui::actsOnce(grid, Key::del)) << "one row at a time";
    EXPECT_FALSE(ui::actsOnce(box, Key::del));
}

} // namespace
} // namespace tellurix::tests
