#pragma once

#include "module/ui/controls/Control.h"
#include "module/ui/controls/TextBox.h"

#include <compare>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace tellurix::ui {

class Button;

/// A table of texts with a header row and a current cell. Rows and columns count from 0, the
/// header not included.
///
/// The user can mark a block of cells, to be copied. It begins at a cell that stays, and its far end
/// moves; the current cell is where it was. Whatever moves the current cell or changes which rows there
/// are takes the mark away.
class Grid final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::grid;
    /// A cell that says one of these is a box to tick.
    static constexpr const char* ticked = "☑";
    static constexpr const char* unticked = "☐";

    /// Where a column stands on a screen that is too narrow for all of them: a row has two lines there as
    /// soon as one of its columns stands below.
    enum class Narrow { beside, below, away };
    /// How a column orders the rows.
    enum class Order { none, ascending, descending };

    struct Column {
        std::string caption;
        int width = 10; ///< room for how many average characters
        bool rightAligned = false;
        bool visible = true;
        bool sized = false;  ///< by the user: it is as wide as it says, however much room there is
        bool open = false;   ///< its cells can be edited at the moment
        bool remark = false; ///< says something about the row, beside its data
        Narrow narrow = Narrow::beside;
        Order order = Order::none;
        std::string toolTip = {}; ///< shown over the column
    };
    using Row = std::vector<std::string>;

    static constexpr int none = -1;

    /// @param rows how many rows are seen without scrolling
    Grid(Form& form, std::string name, int rows = 8) : Control(form, std::move(name)), visibleRows_(rows) {}

    ControlKind kind() const override { return ownKind; }

    int visibleRows() const { return visibleRows_; }
    const std::vector<Column>& columns() const { return columns_; }
    void setColumns(std::vector<Column> columns);
    /// Instead of a width: as wide as the longest text.
    static constexpr int fitting = 0;
    static constexpr int widestColumn = 200;
    /// Marks the column that the rows are ordered by, and no other.
    void markOrder(int column, Order order);
    /// Gives a column the width that the user wants, in average characters.
    void sizeColumn(int column, int width);
    /// Says of which columns the cells can be edited from now on, and of no others.
    void openColumns(const std::set<int>& columns);
    /// Whether cells of any column can be edited.
    bool anyOpen() const;
    const std::vector<Row>& rows() const { return rows_; }
    /// Replaces all rows; the current row stays where it was as far as there is one.
    void setRows(std::vector<Row> rows);
    void addRow(Row row);
    void removeRow(int row);
    const std::string& cell(int row, int column) const;
    void setCell(int row, int column, std::string text);

    /// What stands in the middle while there are no rows: that it is so, and what can be done about it.
    const std::string& emptyText() const { return emptyText_; }
    void setEmptyText(std::string text) { change(emptyText_, std::move(text)); }

    int currentRow() const { return currentRow_; }
    int currentColumn() const { return currentColumn_; }
    /// Moves the current cell without calling `onCurrentChange`, and brings it into sight wherever the
    /// user has scrolled to. A row outside selects none.
    void setCurrent(int row, int column = 0);

    struct Cell {
        int row;
        int column;
        auto operator<=>(const Cell&) const = default;
    };
    /// The cells between two corners, both included.
    struct Block {
        Cell first;
        Cell last;
        bool operator==(const Block&) const = default;
    };
    /// Who has changed what stands in a cell. Rows that are set anew are nobody's.
    ChangedBy changedBy(Cell cell) const;
    void setChangedBy(Cell cell, ChangedBy who);
    /// The cells that somebody has changed, row by row.
    const std::map<Cell, ChangedBy>& changedCells() const { return changedCells_; }
    using Control::changedBy;
    using Control::setChangedBy;

    /// The cells whose text is a warning. Rows that are set anew warn of nothing.
    const std::set<Cell>& warnings() const { return warnings_; }
    void setWarning(Cell cell, bool warns);

    std::optional<Block> block() const;
    /// The end of the block that moves; without one the current cell.
    Cell farEnd() const { return mark_ ? mark_->second : Cell{currentRow_, currentColumn_}; }
    /// Marks the cells up to this one, from where the block begins or from the current cell on, and
    /// brings its far end into sight. Without a current cell there is nothing to begin at.
    void extendTo(Cell far);
    void markAll();

    /// In this grid, a key means a button: what Insert begins, F2 edits and Delete removes.
    void pressOn(Key key, Button& button) { buttons_.emplace_back(key, &button); }
    /// Null for a key that presses none.
    Button* pressedBy(Key key) const;

    /// The box that floats over a cell while the cell is edited in place (see GridEditor), or null.
    /// A display draws it at the cell's place and size; it stands nowhere in the layout. The cell comes
    /// into sight before the box has the focus.
    TextBox* cellEditor() const { return cellEditor_; }
    int editedRow() const { return editedRow_; }
    int editedColumn() const { return editedColumn_; }
    void showCellEditor(TextBox& box, int row, int column);
    void hideCellEditor();

    /// What changed since the last drawing besides the current cell: the columns; which rows there
    /// are; or else only the texts of some rows.
    bool columnsDirty() const { return columnsDirty_; }
    bool rowsDirty() const { return rowsDirty_; }
    const std::set<int>& changedRows() const { return changedRows_; }
    /// Who has changed cells, or which of them warn.
    bool marksDirty() const { return marksDirty_; }
    /// A display scrolls to `farEnd` when it draws this, and at no other change of the grid.
    bool reveals() const { return reveals_; }
    void drawn() override;

    /// The user moved the current cell.
    Handlers<void()> onCurrentChange;
    /// A double click on the current cell, or Enter on it.
    Handlers<void()> onDoubleClick;
    /// A click on the heading of a column, or Ctrl and Enter in it. Only where somebody is told do displays
    /// offer it.
    Handlers<void(int column)> onHeadingClick;
    /// A character was typed while the grid had the focus. One that is not set to 0 looks for a row.
    Handlers<void(char32_t&)> onKeyPress;
    /// A block of a spreadsheet was pasted. Only where cells can be edited is somebody told.
    Handlers<void(const std::string&)> onPaste;
    /// The user made a column wider or narrower.
    Handlers<void()> onColumnSized;
    /// The columns are as the user had left them: whoever orders the rows does it by their mark.
    Handlers<void()> onLayoutRestored;
    /// The user scrolled while a cell was being edited, which ends with it; told at other times it means
    /// nothing.
    Handlers<void()> onScroll;

private:
    void markRowsDirty();
    void moveCurrentRow(int row);
    void reveal();

    std::vector<Column> columns_;
    std::vector<Row> rows_;
    int visibleRows_;
    int currentRow_ = none;
    int currentColumn_ = 0;
    std::optional<std::pair<Cell, Cell>> mark_; ///< where the block begins, and its far end
    std::vector<std::pair<Key, Button*>> buttons_;
    TextBox* cellEditor_ = nullptr;
    int editedRow_ = none;
    int editedColumn_ = 0;
    bool columnsDirty_ = true;
    bool rowsDirty_ = true;
    bool reveals_ = false;
    std::set<int> changedRows_;
    std::map<Cell, ChangedBy> changedCells_;
    std::set<Cell> warnings_;
    bool marksDirty_ = false;
    std::string emptyText_;
};

} // namespace tellurix::ui
