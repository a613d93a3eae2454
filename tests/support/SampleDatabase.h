#pragma once

#include "database/embedded/Database.h"
#include "tests/support/TestFolder.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

namespace tellurix::tests {

/// A small real database in a file of its own, with the sample trade in it; the file goes away
/// with the object. The clock of `GETDATE()` stands at 9 March 2026, 8:00.
class SampleDatabase {
public:
    SampleDatabase();

    const std::filesystem::path& file() const { return file_; }
    std::unique_ptr<base::Connection> connect() const { return database_->connect(); }

    /// The rows that are others than in the sample, one a line: "- " before those that are gone, "+ "
    /// before those that came. The rows of the given contracts and tables are left out.
    std::string changesBeside(const std::set<std::int32_t>& contracts,
                              const std::set<std::string>& tables) const;

private:
    TestFolder folder_;
    std::filesystem::path file_ = folder_ / "sample.db";
    std::unique_ptr<embedded::Database> database_;
};

/// All tables of the schema.
std::set<std::string> tableNames();
/// A row with the kinds of its values told apart: 1, '1' and NULL.
std::string literalRow(base::Recordset& row);

/// A field as the texts of the tests write it: NULL, true, 12.50, 2025-06-05, or the text itself.
std::string written(const base::Value& field);
/// The first row of a query, its fields separated by " | "; "no row" when there is none.
std::string firstRow(base::Connection& connection, const std::string& query);

} // namespace tellurix::tests
