#include "standin/workbench/DatabaseAccess.h"

#include "standin/home/database_file.h"
#include "standin/home/schema_step.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace tellurix::standin {

namespace fs = std::filesystem;

namespace {

/// A connection together with the trace of its statements.
class TracedConnection final : public base::Connection {
public:
    TracedConnection(std::unique_ptr<base::Connection> connection, TraceFile& trace)
        : connection_(std::move(connection)),
          tracing_(*connection_, [&trace](const tracing::Statement& statement) { trace.write(statement); }) {}

    base::ExecuteResult execute(std::string_view statement) override { return tracing_.execute(statement); }
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override {
        return tracing_.openUpdatable(query);
    }

private:
    std::unique_ptr<base::Connection> connection_;
    tracing::TracingConnection tracing_;
};

void requireDayFirst(base::Connection& connection) {
    using namespace std::chrono_literals;
    const auto row = connection.open("Declare @d datetime = '05.06.2025'\r\nSELECT @d AS D");
    const base::Value read = row->field("D");
    const auto* moment = std::get_if<base::DateTime>(&read);
    if (moment == nullptr || base::dayOf(*moment) != 2025y / 6 / 5) {
        throw std::runtime_error{"The database reads '05.06.2025' as another day than 5 June 2025. The "
                                 "connection must read dates with the day first."};
    }
}

/// What is wrong with the place of a database, as a reason behind its name; empty for nothing.
std::string obstacleTo(const fs::path& file) {
    std::error_code ignored;
    const fs::path folder = fs::absolute(file).parent_path();
    if (fs::is_directory(file, ignored)) return "it is a folder";
    if (!fs::exists(folder, ignored)) return "its folder " + folder.string() + " does not exist";
    if (!fs::is_directory(folder, ignored)) return folder.string() + " is not a folder";
    if (::access(file.c_str(), F_OK) == 0) {
        return ::access(file.c_str(), R_OK) == 0 ? "" : "it may not be read by this user";
    }
    // Not by its rights alone: a file system can be read-only as a whole.
    if (::access(folder.c_str(), W_OK | X_OK) == 0) return "";
    return "it does not exist, and cannot be made in " + folder.string() + ": " +
           std::generic_category().message(errno);
}

DatabaseContents contentsOfNew(const CommandLine& line) {
    // What is to be prepared starts empty, so that all is said that is done.
    const bool nothing = line.emptyDatabase || line.command == CommandLine::Command::prepare;
    return nothing ? DatabaseContents::nothing : DatabaseContents::sample;
}

fs::path databaseFile(const CommandLine& line, const base::Clock& clock) {
    fs::path file = line.database.empty() ? defaultDatabaseFile() : fs::path{line.database};
    if (const std::string obstacle = obstacleTo(file); !obstacle.empty())
        throw std::runtime_error{"the database " + file.string() + " cannot be used: " + obstacle};
    try {
        createWhenMissing(file, contentsOfNew(line), clock);
    } catch (const std::exception& error) {
        throw std::runtime_error{"the database " + file.string() + " cannot be made: " + error.what()};
    }
    return file;
}

} // namespace

DatabaseAccess::DatabaseAccess(const CommandLine& line) {
    if (const std::string source = line.server(); !source.empty()) {
        server_ = std::make_unique<odbc::Database>(odbc::Source::parse(source));
    } else {
        file_ = std::make_unique<embedded::Database>(databaseFile(line, clock_), clock_);
        addWhatIsMissing(*file_->connect());
    }
    if (!line.traceFile.empty()) trace_.emplace(line.traceFile);
}

std::string DatabaseAccess::name() const {
    return server_ ? server_->source().description() : file_->file().string();
}

std::unique_ptr<base::Connection> DatabaseAccess::connect() {
    auto connection = server_ ? server_->connect() : file_->connect();
    // A server's sessions have been asked while they were made.
    if (file_) requireDayFirst(*connection);
    if (!trace_) return connection;
    return std::make_unique<TracedConnection>(std::move(connection), *trace_);
}

} // namespace tellurix::standin
