#include "module/ui/input/control_keys.h"

#include "module/base/text.h"
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
    if (box.onKeyPress) box.onKeyPress(character);
    if (character == 0 || !box.typeOver(base::encodeUtf8(character))) return false;
    box.onChange();
    return true;
}

bool typeText(TextBox& box, const std::string& text) {
    std::u32string characters = base::decodeUtf8(box.onPaste ? box.onPaste(text) : text);
    bool whole = std::erase_if(characters, [&box](char32_t c) { return !box.takes(c); }) == 0;
    const std::string all = base::encodeUtf8(characters);
    bool changed = false;
    if (!box.onKeyPress) {
        const std::string wanted = box.textAfterTyping(all);
        changed = box.typeOver(all);
        whole &= box.text() == wanted;
    } else {
        for (char32_t character : characters) {
            box.onKeyPress(character);
            const bool came = character != 0 && box.typeOver(base::encodeUtf8(character));
            changed |= came;
            whole &= came;
        }
    }
    if (changed) box.onChange();
    return whole;
}

} // namespace tellurix::ui
