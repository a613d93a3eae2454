#include "database/embedded/sqlite/ConditionMemory.h"

#include "database/embedded/sqlite/scalar_call.h"

#include <memory>

namespace tellurix::embedded {

namespace {

constexpr const char* pointerType = "condition memory";

/// The value's type and bytes; values that only compare equal are kept apart.
void append(std::string& key, sqlite3_value* value) {
    const int type = sqlite3_value_type(value);
    key += static_cast<char>(type);
    if (type == SQLITE_NULL) return;
    if (type == SQLITE_TEXT) {
        const void* const text = sqlite3_value_text(value);
        const int size = sqlite3_value_bytes(value);
        key.append(reinterpret_cast<const char*>(&size), sizeof size);
        key.append(static_cast<const char*>(text), static_cast<std::size_t>(size));
    } else if (type == SQLITE_INTEGER) {
        const std::int64_t number = sqlite3_value_int64(value);
        key.append(reinterpret_cast<const char*>(&number), sizeof number);
    } else {
        const double number = sqlite3_value_double(value);
        key.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
}

void recalled(ScalarCall& call) {
    ConditionMemory* const memory = ConditionMemory::of(*call.values());
    const std::int64_t* const known =
        memory->recall(static_cast<std::size_t>(call.integer(1)), call.count() - 2, call.values() + 2);
    if (known != nullptr) call.answer(*known);
}

void noted(ScalarCall& call) {
    const std::int64_t result = call.integer(2);
    ConditionMemory::of(*call.values())->note(static_cast<std::size_t>(call.integer(1)), result);
    call.answer(result);
}

} // namespace

void ConditionMemory::bind(SqliteStatement& statement, int parameter) {
    statement.bindPointer(
        parameter, std::make_unique<ConditionMemory>().release(), pointerType, [](void* memory) {
            const std::unique_ptr<ConditionMemory> gone(static_cast<ConditionMemory*>(memory));
        });
}

ConditionMemory* ConditionMemory::of(sqlite3_value* parameter) {
    return static_cast<ConditionMemory*>(sqlite3_value_pointer(parameter, pointerType));
}

const std::int64_t* ConditionMemory::recall(std::size_t number, int count, sqlite3_value** values) {
    if (conditions_.size() <= number) conditions_.resize(number + 1);
    Condition& condition = conditions_[number];
    condition.asked.clear();
    for (int index = 0; index < count; ++index)
        append(condition.asked, values[index]);
    const auto found = condition.results.find(condition.asked);
    return found == condition.results.end() ? nullptr : &found->second;
}

void ConditionMemory::note(std::size_t number, std::int64_t result) {
    Condition& condition = conditions_.at(number);
    // Where the values hardly ever come again, remembering must not take more and more room.
    constexpr std::size_t mostCombinations = 65'536;
    if (condition.results.size() < mostCombinations) condition.results.emplace(condition.asked, result);
}

void registerConditionMemory(sqlite3* connection, SqlSession& session) {
    // Their results change from call to call, unlike those of all other functions.
    sqlite3_create_function_v2(connection, "ts_recalled", -1, SQLITE_UTF8, &session, runScalar<recalled, 0>,
                               nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(connection, "ts_noted", 3, SQLITE_UTF8, &session, runScalar<noted, 0>, nullptr,
                               nullptr, nullptr);
}

} // namespace tellurix::embedded
