#pragma once

#include "module/base/database.h"

#include <chrono>
#include <functional>
#include <string>

namespace tellurix::tracing {

/// One statement as it went through a connection.
struct Statement {
    /// The statement, or "[update] …" / "[delete] …" for a row edited in place, "[rows] …" for a row that
    /// could not be read
    std::string text;
    std::chrono::system_clock::time_point sent;
    std::chrono::microseconds duration{}; ///< up to its first answer
    std::int64_t rowsAffected = -1;       ///< -1 where nothing was counted
    std::string error{};                  ///< empty when it succeeded
};

/// A connection that lets another one do the work and tells an observer of every statement. The
/// trace file, the tests and the measurements look at the module's statements through it. A query is told
/// when it answers first.
class TracingConnection final : public base::Connection {
public:
    using Observer = std::function<void(const Statement&)>;

    /// @param inner does the work, and lives longer than this
    TracingConnection(base::Connection& inner, Observer observer)
        : inner_(inner), observer_(std::move(observer)) {}

    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    base::Connection& inner_;
    Observer observer_;
};

} // namespace tellurix::tracing
