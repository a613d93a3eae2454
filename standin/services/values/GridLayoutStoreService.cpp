#include "standin/services/values/GridLayoutStoreService.h"

#include "module/base/StatementText.h"

#include <sstream>
#include <vector>

namespace tellurix::standin {

using base::StatementText;

namespace {

std::string layoutOf(const ui::Grid& grid) {
    std::string layout;
    for (const ui::Grid::Column& column : grid.columns()) {
        if (!layout.empty()) layout += ' ';
        layout += std::to_string(column.width) + (column.sized ? "=" : "") + (column.visible ? "" : "-");
        if (column.order != ui::Grid::Order::none)
            layout += column.order == ui::Grid::Order::ascending ? '<' : '>';
    }
    return layout;
}

StatementText& placeOf(StatementText& statement, const host::TlxVar& session, const std::string& key) {
    return statement.fixed(" WHERE USERNAME = ").quoted(session.user).fixed(" AND LAYOUT_KEY = ").quoted(key);
}

} // namespace

void GridLayoutStoreService::save(const host::TlxVar& session, const ui::Grid& grid, const std::string& key) {
    StatementText insertion{"IF NOT EXISTS(SELECT LAYOUT_KEY FROM WORKBENCH_GRID_LAYOUT"};
    placeOf(insertion, session, key)
        .fixed(") INSERT INTO WORKBENCH_GRID_LAYOUT (USERNAME,LAYOUT_KEY) VALUES (")
        .quoted(session.user)
        .fixed(",")
        .quoted(key)
        .fixed(")");
    session.connection->execute(insertion.text());

    StatementText change{"UPDATE WORKBENCH_GRID_LAYOUT SET LAYOUT = "};
    change.quoted(layoutOf(grid));
    session.connection->execute(placeOf(change, session, key).text());
}

void GridLayoutStoreService::restore(const host::TlxVar& session, ui::Grid& grid, const std::string& key) {
    StatementText query{"SELECT LAYOUT FROM WORKBENCH_GRID_LAYOUT"};
    const auto stored = session.connection->open(placeOf(query, session, key).text());
    if (stored->atEnd()) return;

    std::istringstream layout{stored->text("LAYOUT")};
    std::vector<ui::Grid::Column> columns = grid.columns();
    for (ui::Grid::Column& column : columns) {
        std::string width;
        int characters = 0;
        if (!(layout >> width) || !(std::istringstream{width} >> characters) || characters < 1) return;
        column.width = characters;
        column.sized = width.find('=') != std::string::npos;
        column.visible = width.find('-') == std::string::npos;
        column.order = width.ends_with('<')   ? ui::Grid::Order::ascending
                       : width.ends_with('>') ? ui::Grid::Order::descending
                                              : ui::Grid::Order::none;
    }
    std::string more;
    if (layout >> more) return;
    grid.setColumns(std::move(columns));
}

} // namespace tellurix::standin
