#pragma once

#include "module/base/Refused.h"
#include "module/ui/controls/Grid.h"

#include <functional>
#include <string>

namespace tellurix::ui {

/// Lets the user edit cells of a grid in place, in one text box that floats over the cell.
///
/// Cells of the grid's open columns can be edited.
///
/// A double click or F2 on a cell that can be edited opens the box with the cell's text; a character typed
/// on it opens the box with that character in place of the text, Delete opens it empty. Delete on another
/// cell does nothing as long as any cell of the row can be edited. In the box, Enter writes and goes
/// back to the grid, Esc goes back without writing, Up and Down write and go to the row above or
/// below as far as there is one, Tab writes and goes on behind the grid. Leaving the box, going back
/// to the grid and scrolling write as well. A text that nobody touched is not written; what was typed
/// is, even where the cell shows the same: it may show fewer decimals than the value has.
///
/// A pasted block fills the cells from the current one on, each as if it were typed and written. The first
/// one that is not taken ends it; the message names its cell, which is the current one then.
class GridEditor {
public:
    /// @param box a text box of the same form that stands nowhere in its layout; its key filter
    ///        (`onKeyPress`) says what can be typed, the same for every cell unless `prepare` gives it others
    GridEditor(Grid& grid, TextBox& box);

    /// Whether a cell of an open column can be edited; may be empty where all of them can.
    std::function<bool(int row, int column)> canEdit;
    /// Gives the box the filter of a column before it opens on one of its cells; may be empty.
    std::function<void(TextBox& box, int column)> prepare;
    /// Writes what was typed for a cell and returns the text that the cell shows from now on. When it
    /// throws, the box stays open with what was typed.
    std::function<std::string(int row, int column, const std::string& typed)> write;

    bool open() const { return grid_.cellEditor() != nullptr; }
    /// Takes the box away without writing, for example because the rows are about to change.
    void close();

private:
    /// Whether the current cell can be edited; then the box takes what belongs into it.
    bool prepareCurrentCell();
    void openOnCurrentCell();
    /// @param character 0 afterwards where the cell can be edited
    void openWith(char32_t& character);
    void showOver(int row, int column, const std::string& text);
    void commit();
    void handleKey(KeyDown& key);
    void handleGridKey(KeyDown& key);
    bool editable(int row, int column) const;
    bool editsAnything() const;
    void paste(const std::string& text);
    void pasteLines(const std::vector<std::vector<std::string>>& lines);
    void pasteInto(Grid::Cell cell, const std::string& value);
    base::Refused::Sentence placeOf(Grid::Cell cell) const;
    /// @param reason gets the value as its last one
    [[noreturn]] void refusePasted(Grid::Cell cell, const std::string& value, base::Refused::Sentence reason);
    void goToRow(int row);

    Grid& grid_;
    TextBox& box_;
    bool pasted_ = false; ///< a cell of the block that came last has been filled
};

} // namespace tellurix::ui
