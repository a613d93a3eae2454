#include "database/embedded/translation/Catalogue.h"

namespace tellurix::embedded {

namespace {

/// Defaults are kept as a quoted T-SQL text, which SQLite itself never uses.
std::string unquoted(std::string_view literal) {
    std::string text;
    for (std::size_t index = 1; index + 1 < literal.size(); ++index) {
        text.push_back(literal[index]);
        if (literal[index] == '\'') ++index;
    }
    return text;
}

} // namespace

Table::Table(std::string name, std::string sqlName, std::vector<TableColumn> columns)
    : name_(std::move(name)), sqlName_(std::move(sqlName)), columns_(std::move(columns)) {
    for (std::size_t index = 0; index < columns_.size(); ++index)
        byName_.emplace(foldName(columns_[index].name), static_cast<int>(index));
}

int Table::findColumn(std::string_view folded) const {
    const auto found = byName_.find(folded);
    return found == byName_.end() ? noColumn : found->second;
}

bool Catalogue::refresh() {
    if (!version_) version_ = connection_.prepare("PRAGMA schema_version", true);
    version_.step();
    const std::int64_t version = version_.integer(0);
    version_.reset();
    if (version == seenVersion_) return false;
    tables_.clear();
    seenVersion_ = version;
    readNames();
    return true;
}

void Catalogue::readNames() {
    SqliteStatement names = connection_.prepare(
        "SELECT name FROM main.sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    while (names.step()) {
        std::string name(names.text(0));
        std::string folded = foldName(name);
        tables_.emplace(std::move(folded), Entry{std::move(name), nullptr});
    }
}

const Table* Catalogue::find(std::string_view folded) {
    const auto found = tables_.find(folded);
    if (found == tables_.end()) return nullptr;
    Entry& entry = found->second;
    if (!entry.table) entry.table = readTable(entry.name);
    return entry.table.get();
}

std::unique_ptr<Table> Catalogue::readTable(const std::string& name) {
    std::vector<TableColumn> columns;
    SqliteStatement rows = connection_.prepare("PRAGMA main.table_info(" + quoteText(name) + ")");
    while (rows.step()) {
        TableColumn column;
        column.name = rows.text(1);
        const auto type = declaredType(rows.text(2));
        if (!type)
            throw Fault(base::DatabaseErrorCategory::other, "The column " + name + "." + column.name +
                                                                " has the unknown type " +
                                                                std::string(rows.text(2)));
        column.type = *type;
        if (!rows.isNull(4)) column.defaultText = unquoted(rows.text(4));
        int identity = 0;
        sqlite3_table_column_metadata(connection_.handle(), "main", name.c_str(), column.name.c_str(),
                                      nullptr, nullptr, nullptr, nullptr, &identity);
        column.identity = identity != 0;
        column.nullable = rows.integer(3) == 0 && !column.identity;
        columns.push_back(std::move(column));
    }
    return std::make_unique<Table>(name, "main." + quoteName(name), std::move(columns));
}

} // namespace tellurix::embedded
