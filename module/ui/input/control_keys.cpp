#include "module/ui/input/control_keys.h"

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

/// The index that a navigation key leads to in a list of `count` entries, or -1 for an empty one.
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

/// Whether a key leads through a list or a table.
bool navigates(Key key) {
    return key >= Key::pageUp && key <= Key::down;
}

void erase(TextBox& box, Key key) {
    if (!box.changeable() || (key != Key::backspace && key != Key::del)) return;
    if (box.erase(key == Key::backspace ? -1 : +1)) box.onChange();
}

void moveInGrid(Grid& grid, Key key) {
    const int rows = static_cast<int>(grid.rows().size());
    const int lastColumn = static_cast<int>(grid.columns().size()) - 1;
    int column = grid.currentColumn();
    if (key == Key::left) column = std::max(column - 1, 0);
    if (key == Key::right) column = std::min(column + 1, lastColumn);
    const int row = movedIndex(key, grid.currentRow(), rows, grid.visibleRows());
    const bool stays = row == grid.currentRow() && column == grid.currentColumn();
    // A key that leads nowhere still brings the current cell back that was scrolled away.
    if (stays && navigates(key)) grid.setCurrent(row, column);
    choose(grid, row, column);
}

void moveInTabs(Tabs& tabs, Key key) {
    const int last = static_cast<int>(tabs.captions().size()) - 1;
    const int step = key == Key::right ? 1 : key == Key::left ? -1 : 0;
    choose(tabs, std::clamp(tabs.selected() + step, 0, last));
}

} // namespace

void choose(Control& control, int index, int column) {
    if (Grid* grid = as<Grid>(&control)) {
        if (index == grid->currentRow() && column == grid->currentColumn()) return;
        grid->setCurrent(index, column);
        grid->onCurrentChange();
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
    } else if (Grid* grid = as<Grid>(&control)) {
        moveInGrid(*grid, key);
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

} // namespace tellurix::ui
