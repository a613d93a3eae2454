#include "module/ui/input/GridEditor.h"

#include "module/base/text.h"
#include "module/ui/Form.h"

namespace tellurix::ui {

GridEditor::GridEditor(Grid& grid, TextBox& box) : grid_(grid), box_(box) {
    box_.setVisible(false);
    box_.onKeyDown = [this](KeyDown& key) { handleKey(key); };
    box_.onLeave = [this] {
        commit();
        return true;
    };
    grid_.onDoubleClick = [this] { openOnCurrentCell(); };
    grid_.onKeyPress = [this](char32_t character) { openWith(character); };
    grid_.onFocus = [this] { commit(); };
    grid_.onScroll = [this] {
        if (!open()) return;
        commit();
        grid_.form().setFocus(grid_);
    };
    grid_.onKeyDown = [](KeyDown& key) {
        // Enter on a grid counts as a double click elsewhere; here it would open the box by accident
        // right after the Enter that closed it.
        if (key.key == Key::enter) key.key = Key::none;
    };
}

bool GridEditor::prepareCurrentCell() {
    const int row = grid_.currentRow();
    const int column = grid_.currentColumn();
    if (row == Grid::none || !canEdit(row, column)) return false;
    if (prepare) prepare(box_, column);
    return true;
}

void GridEditor::openOnCurrentCell() {
    if (!prepareCurrentCell()) return;
    const int row = grid_.currentRow();
    const int column = grid_.currentColumn();
    showOver(row, column, grid_.cell(row, column));
}

void GridEditor::openWith(char32_t character) {
    if (!prepareCurrentCell()) return;
    box_.setText("");
    if (box_.onKeyPress) box_.onKeyPress(character);
    if (character == 0) return;
    showOver(grid_.currentRow(), grid_.currentColumn(), "");
    box_.typeOver(base::encodeUtf8(character));
}

void GridEditor::showOver(int row, int column, const std::string& text) {
    box_.show(text);
    box_.setVisible(true);
    grid_.showCellEditor(box_, row, column);
    grid_.form().setFocus(box_);
}

void GridEditor::commit() {
    if (!open()) return;
    const int row = grid_.editedRow();
    const int column = grid_.editedColumn();
    if (box_.touched()) {
        std::string shown = write(row, column, box_.text());
        // The rows may have been loaded again meanwhile.
        if (row < static_cast<int>(grid_.rows().size())) grid_.setCell(row, column, std::move(shown));
    }
    close();
}

void GridEditor::close() {
    grid_.hideCellEditor();
    box_.setVisible(false);
}

void GridEditor::handleKey(KeyDown& key) {
    if (!open()) return;
    switch (key.key) {
    case Key::escape:
        close();
        grid_.form().setFocus(grid_);
        break;
    case Key::enter:
        commit();
        grid_.form().setFocus(grid_);
        break;
    case Key::up:
        commit();
        goToRow(grid_.currentRow() - 1);
        break;
    case Key::down:
        commit();
        goToRow(grid_.currentRow() + 1);
        break;
    case Key::tab:
        // The box has no place in the tab order: Tab goes on from the grid.
        commit();
        grid_.form().setFocus(grid_);
        return;
    default:
        return;
    }
    key.key = Key::none;
}

void GridEditor::goToRow(int row) {
    grid_.form().setFocus(grid_);
    if (row < 0 || row >= static_cast<int>(grid_.rows().size())) return;
    grid_.setCurrent(row, grid_.currentColumn());
    if (grid_.onCurrentChange) grid_.onCurrentChange();
}

} // namespace tellurix::ui
