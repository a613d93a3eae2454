#pragma once

#include "database/embedded/sqlite/SqlSession.h"

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// One call of a function of ours inside SQLite: its arguments and its result.
///
/// Functions that can fail take the position of their construct in the statement text as an
/// argument, so that an error points there though it is found while rows are read.
class ScalarCall {
public:
    ScalarCall(sqlite3_context* context, int count, sqlite3_value** values)
        : context_(context), count_(count), values_(values) {}

    SqlSession& session() const { return *static_cast<SqlSession*>(sqlite3_user_data(context_)); }
    int count() const { return count_; }
    sqlite3_value** values() const { return values_; }
    bool isNull(int index) const { return sqlite3_value_type(values_[index]) == SQLITE_NULL; }
    std::int64_t integer(int index) const { return sqlite3_value_int64(values_[index]); }
    int smallInteger(int index) const { return sqlite3_value_int(values_[index]); }
    double floating(int index) const { return sqlite3_value_double(values_[index]); }
    std::size_t position(int index) const { return static_cast<std::size_t>(integer(index)); }
    std::string_view text(int index) const {
        const void* const bytes = sqlite3_value_text(values_[index]);
        return {static_cast<const char*>(bytes),
                static_cast<std::size_t>(sqlite3_value_bytes(values_[index]))};
    }

    void answer(std::int64_t value) { sqlite3_result_int64(context_, value); }
    void answer(double value) { sqlite3_result_double(context_, value); }
    void answer(std::string_view value) {
        sqlite3_result_text64(context_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    void answerArgument(int index) { sqlite3_result_value(context_, values_[index]); }

private:
    sqlite3_context* context_;
    int count_;
    sqlite3_value** values_;
};

using ScalarBody = void (*)(ScalarCall&);

/// The boundary between SQLite and a function of ours: NULL among the first `nullable` arguments
/// gives NULL, and no exception passes through C code.
template <ScalarBody body, int nullable>
void runScalar(sqlite3_context* context, int count, sqlite3_value** values) noexcept {
    for (int index = 0; index < nullable; ++index)
        if (sqlite3_value_type(values[index]) == SQLITE_NULL) return sqlite3_result_null(context);
    ScalarCall call(context, count, values);
    try {
        body(call);
    } catch (const Fault& fault) {
        call.session().failure = fault;
        sqlite3_result_error(context, fault.what(), -1);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

/// Makes a function known to one connection. These give the same result for the same
/// arguments within one statement, which lets SQLite compute constants once.
template <ScalarBody body, int nullable>
void registerScalar(sqlite3* connection, const char* name, int arguments, SqlSession& session) {
    sqlite3_create_function_v2(connection, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC, &session,
                               runScalar<body, nullable>, nullptr, nullptr, nullptr);
}

void registerArithmetic(sqlite3* connection, SqlSession& session);
void registerConversions(sqlite3* connection, SqlSession& session);
void registerTextFunctions(sqlite3* connection, SqlSession& session);
void registerDateFunctions(sqlite3* connection, SqlSession& session);

/// A text for an error message, cut when it is long.
std::string excerpt(std::string_view text);

} // namespace tellurix::embedded
