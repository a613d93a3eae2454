#pragma once

#include "database/embedded/Database.h"
#include "tests/support/StandingClock.h"
#include "tests/support/TestFolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// What a program of tests runs on.
struct Adapter {
    /// The database's name in the statement files: "embedded", "server" (a T-SQL one) or "postgresql".
    const char* database;
    /// Whether errors tell where in the statement they are.
    bool tellsPositions;
    /// Whether its clock runs on, as nobody can stop that of a server which is lent to the tests.
    bool clockRuns = false;
};

/// A test with a database file of its own, in which it is always 5 June 2025, half past two.
class EmbeddedTest : public testing::Test {
protected:
    /// As the program of tests reaches the database: this folder's own directly, that of the ADO
    /// adapter through it. Each says so in a file of its own.
    std::unique_ptr<base::Connection> connect() const;
    static const Adapter adapter;
    Database database() const {
        return Database(file_, clock_, {.create = true, .patience = std::chrono::milliseconds{300}});
    }
    const std::filesystem::path& file() const { return file_; }
    const base::Clock& clock() const { return clock_; }

private:
    tests::StandingClock clock_{base::startOf(std::chrono::year{2025} / 6 / 5) + std::chrono::hours{14} +
                                std::chrono::minutes{30}};
    tests::TestFolder folder_;
    std::filesystem::path file_ = folder_ / "test.db";
};

/// A field as the statement files write it (see README.md).
std::string written(const base::Value& value);
/// The current row's fields, separated by " | ".
std::string writtenRow(base::Recordset& rows);
/// All rows, each on a line; "no rows" when there are none.
std::string answer(base::Connection& connection, std::string_view query);

/// The category and message of the error that `work` ends in; "none" when it ends well.
std::string nameOf(base::DatabaseErrorCategory category);
template <typename Work>
std::string failureOf(const Work& work) {
    try {
        work();
        return "none";
    } catch (const base::DatabaseError& error) {
        return nameOf(error.category()) + ": " + error.what();
    }
}

} // namespace tellurix::embedded
