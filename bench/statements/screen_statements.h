#pragma once

#include "bench/statements/StraightConnection.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::bench {

/// Has a user work through everything that the contract editor and the contract header can do, in an
/// existing contract and in a new one that is discarded, and notes what is sent to the database.
/// @return every statement text once, in the order of the first time. A row that was edited in place
///         stands as "[update] COLUMN of SELECT …"
std::vector<std::string> screenStatements(const std::filesystem::path& database);

/// The same work in SQLite's own SQL, as somebody would write it who needs nothing else.
struct Counterpart {
    std::string_view name;
    std::string_view in; ///< what the statement's text holds
    std::string_view sql;
    Kinds literals; ///< the numbers, texts and NULLs in the statement's text, in their order
    Kinds columns;  ///< of the rows
    /// Makes what the statement then deletes, or has it write something new: SQLite writes nothing where
    /// a row would stay as it is. % stands for the statement's last literal.
    std::string_view before = {};
};

/// The counterpart whose `in` stands in the statement, the longest where several do.
/// @return nullptr when there is none yet
const Counterpart* findCounterpart(const std::string& statement);
/// @throws std::runtime_error when there is none
const Counterpart& counterpartOf(const std::string& statement);

/// The values that the literals of a statement's text mean.
std::vector<base::Value> literalsOf(std::string_view statement, Kinds kinds);

} // namespace tellurix::bench
