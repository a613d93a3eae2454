#pragma once

#include "database/embedded/sqlite/SqliteConnection.h"
#include "database/embedded/values/names.h"
#include "database/embedded/values/types.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::embedded {

struct TableColumn {
    std::string name;
    Type type;
    bool identity = false; ///< also the whole primary key, so never NULL
    bool nullable = true;
    std::string defaultText; ///< T-SQL; empty when there is none
};

/// A table, or a table variable, as the translation needs to know it.
class Table {
public:
    static constexpr int noColumn = -1;

    /// @param sqlName as it stands in SQLite's SQL
    Table(std::string name, std::string sqlName, std::vector<TableColumn> columns);

    const std::string& name() const { return name_; }
    const std::string& sqlName() const { return sqlName_; }
    const std::vector<TableColumn>& columns() const { return columns_; }
    const TableColumn& column(int index) const { return columns_[static_cast<std::size_t>(index)]; }
    /// @return `noColumn` when there is none of that name
    int findColumn(std::string_view folded) const;

private:
    std::string name_;
    std::string sqlName_;
    std::vector<TableColumn> columns_;
    NameMap<int> byName_;
};

/// The tables of the database with their T-SQL types, read from SQLite's own catalogue, where the
/// declarations stand as they were given, and kept until any connection changes the schema.
class Catalogue {
public:
    explicit Catalogue(SqliteConnection& connection) : connection_(connection) {}

    /// Forgets everything when the schema has changed.
    /// @return whether it had
    bool refresh();

    /// @return nullptr when there is no table of that name; else valid until the next refresh
    const Table* find(std::string_view folded);

private:
    void readNames();
    std::unique_ptr<Table> readTable(const std::string& name);

    SqliteConnection& connection_;
    SqliteStatement version_;
    std::int64_t seenVersion_ = -1;
    struct Entry {
        std::string name;
        std::unique_ptr<Table> table;
    };
    NameMap<Entry> tables_;
};

} // namespace tellurix::embedded
