#include "database/embedded/sqlite/only_aggregate.h"

namespace tellurix::embedded {

namespace {

/// SQLite gives this memory zeroed.
struct OnlyRow {
    sqlite3_value* value;
    bool seen;
};

void takeRow(sqlite3_context* context, int, sqlite3_value** values) noexcept {
    auto* const row = static_cast<OnlyRow*>(sqlite3_aggregate_context(context, sizeof(OnlyRow)));
    if (row == nullptr) return sqlite3_result_error_nomem(context);
    if (row->seen) {
        constexpr const char* message = "The subquery gives more than one row where one value is needed";
        auto& session = *static_cast<SqlSession*>(sqlite3_user_data(context));
        session.failure = Fault(base::DatabaseErrorCategory::other, message,
                                static_cast<std::size_t>(sqlite3_value_int64(values[1])));
        return sqlite3_result_error(context, message, -1);
    }
    row->seen = true;
    row->value = sqlite3_value_dup(values[0]);
}

void answerRow(sqlite3_context* context) noexcept {
    auto* const row = static_cast<OnlyRow*>(sqlite3_aggregate_context(context, 0));
    if (row == nullptr || row->value == nullptr) return sqlite3_result_null(context);
    sqlite3_result_value(context, row->value);
    sqlite3_value_free(row->value);
}

} // namespace

void registerOnlyAggregate(sqlite3* connection, SqlSession& session) {
    sqlite3_create_function_v2(connection, "ts_only", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, &session,
                               nullptr, takeRow, answerRow, nullptr);
}

} // namespace tellurix::embedded
