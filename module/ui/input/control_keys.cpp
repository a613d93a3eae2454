#include "module/ui/input/control_keys.h"

#include "module/base/text.h"
#include "module/ui/Form.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/Tabs.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/controls/UpDown.h"

#include <algorithm>

namespace tellurix::ui {

namespace {

ItemList* asItemList(Control* control) {
    if (ItemList* list = as<ComboBox>(control)) return list;
    return as<ListBox>(control);
}

void erase(TextBox& box, Key key) {
    if (!box.changeable() || (key != Key::backspace && key != Key::del)) return;
    if (box.erase(key == Key::backspace ? -1 : +1)) box.onChange();
}

void moveInTabs(Tabs& tabs, Key key) {
    const int last = static_cast<int>(tabs.captions().size()) - 1;
    const int step = key == Key::right ? 1 : key == Key::left ? -1 : 0;
    choose(tabs, std::clamp(tabs.selected() + step, 0, last));
}

/// Tells what a box takes, or what else is wrong with what was typed.
void refuse(TextBox& box, const TextBox::Takes& why) {
    box.refuse(base::ownText(why.text, box.form().language(), why.values));
}

void refuse(TextBox& box) {
    if (box.takes()) refuse(box, *box.takes());
}

} // namespace

int movedIndex(Key key, int current, int count, int page) {
    if (count == 0) return -1;
    switch (key) {
    case Key::up:
        return std::max(current - 1, 0);
    case Key::down:
        return std::min(current + 1, count - 1);
    case Key::pageUp:
        return std::max(current - page, 0);
    case Key::pageDown:
        return std::min(current + page, count - 1);
    case Key::home:
        return 0;
    case Key::end:
        return count - 1;
    default:
        return current;
    }
}

bool navigates(Key key) {
    return key >= Key::pageUp && key <= Key::down;
}

void choose(Control& control, int index, int column) {
    if (Grid* grid = as<Grid>(&control)) {
        const bool another = index != grid->currentRow() || column != grid->currentColumn();
        if (!another && !grid->block()) return;
        grid->setCurrent(index, column);
        if (another) grid->onCurrentChange();
    } else if (ItemList* list = asItemList(&control)) {
        if (index == list->selected()) return;
        list->select(index);
        control.noteChange();
        list->onChange();
    } else if (Tabs* tabs = as<Tabs>(&control)) {
        if (index == tabs->selected()) return;
        tabs->select(index);
        tabs->onChange();
    }
}

void applyKey(Control& control, Key key) {
    if (TextBox* box = as<TextBox>(&control)) {
        erase(*box, key);
    } else if (ItemList* list = asItemList(&control)) {
        const int count = static_cast<int>(list->items().size());
        choose(*list, movedIndex(key, list->selected(), count, list->pageSize()));
    } else if (Tabs* tabs = as<Tabs>(&control)) {
        moveInTabs(*tabs, key);
    } else if (UpDown* upDown = as<UpDown>(&control)) {
        if (key == Key::up) upDown->onUp();
        if (key == Key::down) upDown->onDown();
    }
}

bool typeCharacter(TextBox& box, char32_t character) {
    box.form().status().goOn();
    if (box.onKeyPress) box.onKeyPress(character);
    if (character == 0) {
        refuse(box);
        return false;
    }
    if (!box.typeOver(base::encodeUtf8(character))) {
        refuse(box, {base::OwnText::takesNoMore, {std::to_string(box.maxLength())}});
        return false;
    }
    box.onChange();
    return true;
}

bool typeText(TextBox& box, const std::string& text) {
    std::u32string characters = base::decodeUtf8(box.onPaste ? box.onPaste(text) : text);
    bool whole = std::erase_if(characters, [&box](char32_t c) { return !box.isText(c); }) == 0;
    box.form().status().goOn();
    std::size_t taken = 0;
    if (!box.onKeyPress) {
        taken = std::min(characters.size(), box.room());
        box.typeOver(base::encodeUtf8(characters));
    } else {
        for (char32_t character : characters) {
            box.onKeyPress(character);
            if (character != 0 && box.typeOver(base::encodeUtf8(character))) ++taken;
        }
    }
    if (taken > 0) box.onChange();
    if (taken == 0 && !text.empty()) {
        refuse(box);
    } else if (taken < characters.size()) {
        refuse(box, {base::OwnText::textIsCut, {std::to_string(taken), std::to_string(characters.size())}});
    }
    return whole && taken == characters.size();
}

} // namespace tellurix::ui
