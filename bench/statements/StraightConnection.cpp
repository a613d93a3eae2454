#include "bench/statements/StraightConnection.h"

#include "bench/support/measure.h"

#include <algorithm>
#include <stdexcept>

namespace tellurix::bench {

namespace {

int compareTexts(void* collation, int leftSize, const void* left, int rightSize, const void* right) noexcept {
    return static_cast<const embedded::Collation*>(collation)->compare(
        {static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

constexpr int patienceMilliseconds = 5000;

} // namespace

StraightConnection::StraightConnection(const std::filesystem::path& file) {
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    require(code);
    sqlite3_busy_timeout(handle, patienceMilliseconds);
    require(sqlite3_create_collation_v2(handle, embedded::Collation::name, SQLITE_UTF8,
                                        const_cast<embedded::Collation*>(&collation_), compareTexts,
                                        nullptr));
    run("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; PRAGMA temp_store=MEMORY;");
}

void StraightConnection::require(int code) const {
    if (code != SQLITE_OK) throw std::runtime_error{std::string{"SQLite: "} + sqlite3_errmsg(handle_.get())};
}

void StraightConnection::run(const std::string& sql) {
    require(sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

StraightStatement::StraightStatement(StraightConnection& connection, std::string_view sql,
                                     std::vector<base::Value> values, Kinds columns)
    : connection_(connection), values_(std::move(values)), columns_(columns) {
    const char* rest = sql.data();
    const char* const end = rest + sql.size();
    while (rest < end) {
        sqlite3_stmt* statement = nullptr;
        connection_.require(sqlite3_prepare_v3(connection_.handle(), rest, static_cast<int>(end - rest),
                                               SQLITE_PREPARE_PERSISTENT, &statement, &rest));
        if (statement != nullptr) statements_.emplace_back(statement);
    }
    if (sqlite3_column_count(statements_.front().get()) != static_cast<int>(columns_.size()))
        throw std::logic_error{"not every column has its kind: " + std::string{sql}};
}

void StraightStatement::bind(sqlite3_stmt* statement) const {
    const auto count =
        std::min(values_.size(), static_cast<std::size_t>(sqlite3_bind_parameter_count(statement)));
    for (std::size_t i = 0; i < count; ++i) {
        const int parameter = static_cast<int>(i) + 1;
        const base::Value& value = values_[i];
        if (const auto* integer = std::get_if<std::int64_t>(&value))
            sqlite3_bind_int64(statement, parameter, *integer);
        else if (const auto* decimal = std::get_if<base::Decimal>(&value))
            sqlite3_bind_int64(statement, parameter, decimal->units());
        else if (const auto* moment = std::get_if<base::DateTime>(&value))
            sqlite3_bind_int64(statement, parameter, moment->time_since_epoch().count());
        else if (const auto* text = std::get_if<std::string>(&value))
            sqlite3_bind_text64(statement, parameter, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8);
        else
            sqlite3_bind_null(statement, parameter);
    }
}

base::Value StraightStatement::value(sqlite3_stmt* statement, int column) const {
    if (sqlite3_column_type(statement, column) == SQLITE_NULL) return {};
    const char kind = columns_[static_cast<std::size_t>(column)];
    if (kind == 't') {
        const auto* const bytes =
            static_cast<const char*>(static_cast<const void*>(sqlite3_column_text(statement, column)));
        return std::string{bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
    }
    const std::int64_t number = sqlite3_column_int64(statement, column);
    switch (kind) {
    case 'i':
        return number;
    case 'b':
        return number != 0;
    case 'd':
        return base::DateTime{std::chrono::milliseconds{number}};
    default:
        return base::Decimal{number, kind - '0'};
    }
}

template <typename Take>
void StraightStatement::runEach(const Take& take) {
    for (const Prepared& prepared : statements_) {
        sqlite3_stmt* const statement = prepared.get();
        bind(statement);
        int code = sqlite3_step(statement);
        for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
            if (&prepared == &statements_.front()) take(statement);
        }
        const int ended = sqlite3_reset(statement);
        connection_.require(ended);
    }
}

void StraightStatement::run() {
    const int columns = static_cast<int>(columns_.size());
    runEach([this, columns](sqlite3_stmt* statement) {
        for (int i = 0; i < columns; ++i)
            keep(value(statement, i));
    });
}

std::vector<StraightStatement::Row> StraightStatement::rows() {
    std::vector<Row> rows;
    runEach([this, &rows](sqlite3_stmt* statement) {
        Row& row = rows.emplace_back();
        for (int i = 0; i < static_cast<int>(columns_.size()); ++i)
            row.push_back(value(statement, i));
    });
    return rows;
}

} // namespace tellurix::bench
