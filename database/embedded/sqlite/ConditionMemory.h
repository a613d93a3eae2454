#pragma once

#include "database/embedded/sqlite/SqlSession.h"
#include "database/embedded/sqlite/SqliteStatement.h"

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace tellurix::embedded {

/// What conditions gave for the values that they depend on, as long as a statement runs. Rows that
/// agree in a few columns then ask a long condition once. A choice between many conditions is remembered
/// by the whole number that it gave.
///
/// In SQLite's SQL, `ifnull(ts_recalled(memory,n,VALUES…),ts_noted(memory,n,CONDITION))`: the first gives
/// what the condition number n gave for these values, or NULL, upon which the second gets it. The
/// condition must never be NULL, and must depend on nothing else that changes while the statement runs.
class ConditionMemory {
public:
    /// Gives the parameter of a statement an empty memory, which is gone when another value is bound.
    static void bind(SqliteStatement& statement, int parameter);
    static ConditionMemory* of(sqlite3_value* parameter);

    /// @return nullptr when it is not known; `note` then has to follow before the next `recall` of it
    const std::int64_t* recall(std::size_t number, int count, sqlite3_value** values);
    void note(std::size_t number, std::int64_t result);

private:
    struct Condition {
        std::unordered_map<std::string, std::int64_t> results;
        std::string asked; ///< the values of the last call
    };

    std::vector<Condition> conditions_;
};

void registerConditionMemory(sqlite3* connection, SqlSession& session);

} // namespace tellurix::embedded
