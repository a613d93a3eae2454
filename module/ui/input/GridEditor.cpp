#include "module/ui/input/GridEditor.h"

#include "module/base/text.h"
#include "module/ui/Form.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/control_keys.h"
#include "module/ui/input/grid_keys.h"
#include "module/ui/input/grid_text.h"

#include <utility>
#include <vector>

namespace tellurix::ui {

GridEditor::GridEditor(Grid& grid, TextBox& box) : grid_(grid), box_(box) {
    box_.setVisible(false);
    box_.onKeyDown = [this](KeyDown& key) { handleKey(key); };
    box_.onLeave = [this] {
        commit();
        return true;
    };
    grid_.onDoubleClick = [this] { openOnCurrentCell(); };
    grid_.onKeyPress = [this](char32_t& character) { openWith(character); };
    grid_.onPaste = [this](const std::string& text) { paste(text); };
    grid_.onFocus = [this] { commit(); };
    grid_.onScroll = [this] {
        if (!open()) return;
        commit();
        grid_.form().setFocus(grid_);
    };
    grid_.onKeyDown = [this](KeyDown& key) { handleGridKey(key); };
}

void GridEditor::handleGridKey(KeyDown& key) {
    if (key.shift || key.ctrl || key.alt) return;
    const bool opens = key.key == Key::f2 || key.key == Key::del;
    if (opens && prepareCurrentCell()) {
        openOnCurrentCell();
        if (key.key == Key::del) box_.erase(+1);
    } else if (key.key == Key::enter) {
        // Enter on a grid counts as a double click elsewhere; here it would open the box by accident
        // right after the Enter that closed it.
    } else if (key.key != Key::del || !editsAnything()) {
        return;
    }
    key.key = Key::none;
}

bool GridEditor::editable(int row, int column) const {
    const auto at = static_cast<std::size_t>(column);
    return at < grid_.columns().size() && grid_.columns()[at].open && (!canEdit || canEdit(row, column));
}

bool GridEditor::editsAnything() const {
    const int row = grid_.currentRow();
    for (int column = 0; row != Grid::none && column < static_cast<int>(grid_.columns().size()); ++column)
        if (editable(row, column)) return true;
    return false;
}

bool GridEditor::prepareCurrentCell() {
    const int row = grid_.currentRow();
    const int column = grid_.currentColumn();
    if (row == Grid::none || !editable(row, column)) return false;
    if (prepare) prepare(box_, column);
    return true;
}

void GridEditor::openOnCurrentCell() {
    if (!prepareCurrentCell()) return;
    const int row = grid_.currentRow();
    const int column = grid_.currentColumn();
    showOver(row, column, grid_.cell(row, column));
}

void GridEditor::openWith(char32_t& character) {
    if (!prepareCurrentCell()) return;
    box_.setText("");
    const char32_t typed = std::exchange(character, 0);
    char32_t filtered = typed;
    if (box_.onKeyPress) box_.onKeyPress(filtered);
    if (filtered == 0) return;
    showOver(grid_.currentRow(), grid_.currentColumn(), "");
    box_.typeOver(base::encodeUtf8(filtered));
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

void GridEditor::paste(const std::string& text) {
    if (grid_.currentRow() == Grid::none) return;
    pasted_ = false;
    // The screen shows the details of the line that it has written last.
    const auto tellCurrent = [this] {
        if (pasted_ && grid_.onCurrentChange) grid_.onCurrentChange();
    };
    try {
        pasteLines(pastedCells(text));
    } catch (const std::exception&) {
        tellCurrent();
        throw;
    }
    tellCurrent();
}

void GridEditor::pasteLines(const std::vector<std::vector<std::string>>& lines) {
    const Grid::Cell first{grid_.currentRow(), grid_.currentColumn()};
    if (lines.empty()) return;
    Grid::Cell cell = first;
    Grid::Cell last = first;
    for (const std::vector<std::string>& line : lines) {
        cell.column = first.column;
        bool full = cell.row >= static_cast<int>(grid_.rows().size());
        for (const std::string& value : line) {
            if (full) refusePasted(last, value, {base::OwnText::noRoomToPaste});
            grid_.setCurrent(cell.row, cell.column);
            pasteInto(cell, value);
            last = cell;
            cell.column = seenColumn(grid_, last.column, +1);
            full = cell.column == last.column;
        }
        ++cell.row;
    }
    grid_.setCurrent(first.row, first.column);
    grid_.extendTo(last);
}

void GridEditor::pasteInto(Grid::Cell cell, const std::string& value) {
    if (!editable(cell.row, cell.column)) {
        // A block that was copied here comes back with the cells between.
        if (grid_.cell(cell.row, cell.column) == value) return;
        refusePasted(cell, value, {base::OwnText::cellIsFixed});
    }
    if (prepare) prepare(box_, cell.column);
    box_.show(grid_.cell(cell.row, cell.column));
    box_.selectAll();
    box_.erase(+1);
    if (!typeText(box_, value)) refusePasted(cell, value, {base::OwnText::notTyped});
    try {
        std::string shown = write(cell.row, cell.column, box_.text());
        pasted_ = true;
        if (cell.row < static_cast<int>(grid_.rows().size()))
            grid_.setCell(cell.row, cell.column, std::move(shown));
    } catch (const base::Refused& refused) {
        if (refused.sentences().empty()) throw; // already in words, of which none can be put in front
        std::vector<base::Refused::Sentence> message = refused.sentences();
        message.insert(message.begin(), placeOf(cell));
        throw RefusedInput{grid_, std::move(message)};
    }
}

base::Refused::Sentence GridEditor::placeOf(Grid::Cell cell) const {
    return {pasted_ ? base::OwnText::pastingStopped : base::OwnText::nothingPasted,
            {std::to_string(cell.row + 1), grid_.columns()[static_cast<std::size_t>(cell.column)].caption}};
}

void GridEditor::refusePasted(Grid::Cell cell, const std::string& value, base::Refused::Sentence reason) {
    reason.values.push_back(value);
    throw RefusedInput{grid_, {placeOf(cell), std::move(reason)}};
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
