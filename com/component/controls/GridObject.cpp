#include "com/component/controls/GridObject.h"

#include "com/session/grid_order.h"

namespace tellurix::windows {

namespace {

std::size_t columnNumber(const GridObject& grid, const CallArguments& arguments) {
    const std::int32_t column = arguments[0].integer();
    if (column < 0 || static_cast<std::size_t>(column) >= grid.target().columns().size())
        throw AutomationError(DISP_E_BADINDEX, "There is no column " + std::to_string(column));
    return static_cast<std::size_t>(column);
}

const ui::Grid::Column& columnOf(const GridObject& grid, const CallArguments& arguments) {
    return grid.target().columns()[columnNumber(grid, arguments)];
}

void setColumn(GridObject& grid, const CallArguments& arguments) {
    std::vector<ui::Grid::Column> columns = grid.target().columns();
    ui::Grid::Column& column = columns[columnNumber(grid, arguments)];
    column.width = arguments[1].integer();
    column.visible = arguments[2].flag();
    // A library that keeps widths alone need not know of the rest.
    if (arguments.has(3)) column.sized = arguments[3].flag();
    if (arguments.has(4)) column.order = orderOf(arguments[4].integer());
    grid.target().setColumns(std::move(columns));
}

} // namespace

const DispatchTable& GridObject::table() const {
    using Grid = GridObject;
    using Given = const CallArguments&;
    static const DispatchTable members =
        DispatchTable()
            .method<Grid>(L"Name", [](Grid& grid, Given) { return Variant(grid.target().name()); })
            .method<Grid>(L"Cols",
                          [](Grid& grid, Given) {
                              return Variant(static_cast<std::int32_t>(grid.target().columns().size()));
                          })
            .method<Grid>(L"ColWidth",
                          [](Grid& grid, Given given) { return Variant(columnOf(grid, given).width); })
            .method<Grid>(L"ColVisible",
                          [](Grid& grid, Given given) { return Variant(columnOf(grid, given).visible); })
            .method<Grid>(L"ColSized",
                          [](Grid& grid, Given given) { return Variant(columnOf(grid, given).sized); })
            .method<Grid>(
                L"ColOrder",
                [](Grid& grid, Given given) { return Variant(numberOf(columnOf(grid, given).order)); })
            .method<Grid>(L"SetColumn", setColumn);
    return members;
}

} // namespace tellurix::windows
