#include "start/DatabaseAccess.h"

#include "home/database_file.h"

#include <stdexcept>

namespace tellurix::workbench {

namespace {

/// A connection together with the trace of its statements.
class TracedConnection final : public common::Connection {
public:
    TracedConnection(std::unique_ptr<common::Connection> connection, TraceFile& trace)
        : connection_(std::move(connection)),
          tracing_(*connection_, [&trace](const tracing::Statement& statement) { trace.write(statement); }) {}

    common::ExecuteResult execute(std::string_view statement) override { return tracing_.execute(statement); }
    std::unique_ptr<common::UpdatableRecordset> openUpdatable(std::string_view query) override {
        return tracing_.openUpdatable(query);
    }

private:
    std::unique_ptr<common::Connection> connection_;
    tracing::TracingConnection tracing_;
};

void requireDayFirst(common::Connection& connection) {
    using namespace std::chrono_literals;
    const auto row = connection.open("Declare @d datetime = '05.06.2025'\r\nSELECT @d AS D");
    const common::Value read = row->field("D");
    const auto* moment = std::get_if<common::DateTime>(&read);
    if (moment == nullptr || common::dayOf(*moment) != 2025y / 6 / 5) {
        throw std::runtime_error{"The database reads '05.06.2025' as another day than 5 June 2025. The "
                                 "connection must read dates with the day first."};
    }
}

std::filesystem::path databaseFile(const CommandLine& line, const common::Clock& clock) {
    const std::filesystem::path file =
        line.database.empty() ? defaultDatabaseFile() : std::filesystem::path{line.database};
    createWhenMissing(file, line.emptyDatabase ? DatabaseContents::nothing : DatabaseContents::sample, clock);
    return file;
}

} // namespace

DatabaseAccess::DatabaseAccess(const CommandLine& line) : database_(databaseFile(line, clock_), clock_) {
    if (!line.traceFile.empty()) trace_.emplace(line.traceFile);
}

std::unique_ptr<common::Connection> DatabaseAccess::connect() {
    auto connection = database_.connect();
    requireDayFirst(*connection);
    if (!trace_) return connection;
    return std::make_unique<TracedConnection>(std::move(connection), *trace_);
}

} // namespace tellurix::workbench
