#pragma once

#include "module/ui/controls/Control.h"
#include "module/ui/controls/TextBox.h"

#include <set>
#include <vector>

namespace tellurix::ui {

/// A table of texts with a header row and a current cell. Rows and columns count from 0, the
/// header not included.
class Grid final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::grid;

    /// How a column orders the rows.
    enum class Order { none, ascending, descending };

    struct Column {
        std::string caption;
        int width = 10; ///< room for how many average characters
        bool rightAligned = false;
        bool visible = true;
        bool sized = false; ///< by the user: it is as wide as it says, however much room there is
        Order order = Order::none;
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
    const std::vector<Row>& rows() const { return rows_; }
    /// Replaces all rows; the current row stays where it was as far as there is one.
    void setRows(std::vector<Row> rows);
    void addRow(Row row);
    void removeRow(int row);
    const std::string& cell(int row, int column) const;
    void setCell(int row, int column, std::string text);

    int currentRow() const { return currentRow_; }
    int currentColumn() const { return currentColumn_; }
    /// Moves the current cell without calling `onCurrentChange`, and brings it into sight wherever the
    /// user has scrolled to. A row outside selects none.
    void setCurrent(int row, int column = 0);

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
    /// A display scrolls to the current cell when it draws this, and at no other change of the grid.
    bool reveals() const { return reveals_; }
    void drawn() override;

    /// The user moved the current cell.
    Handlers<void()> onCurrentChange;
    /// A double click on the current cell, or Enter on it.
    Handlers<void()> onDoubleClick;
    /// A click on the heading of a column, or Ctrl and Enter in it. Only where somebody is told do displays
    /// offer it.
    Handlers<void(int column)> onHeadingClick;
    /// A character was typed while the grid had the focus.
    Handlers<void(char32_t)> onKeyPress;
    /// The user made a column wider or narrower.
    Handlers<void()> onColumnSized;
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
    TextBox* cellEditor_ = nullptr;
    int editedRow_ = none;
    int editedColumn_ = 0;
    bool columnsDirty_ = true;
    bool rowsDirty_ = true;
    bool reveals_ = false;
    std::set<int> changedRows_;
};

} // namespace tellurix::ui
