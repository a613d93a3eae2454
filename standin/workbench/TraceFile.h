#pragma once

#include "database/tracing/TracingConnection.h"

#include <mutex>
#include <string>

namespace tellurix::standin {

/// A file that every statement is appended to as one line of JSON: when it was sent, how long it
/// took, what it changed, how it failed. Sessions of one process and of several write whole lines.
class TraceFile {
public:
    /// @throws std::system_error when the file cannot be written
    explicit TraceFile(const std::string& path);
    ~TraceFile();
    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

    /// Never throws for a full disk: the statement has run, and its session must not suffer for it.
    /// The first failure is told on standard error.
    void write(const tracing::Statement& statement);

private:
    std::mutex mutex_;
    std::string path_;
    int file_;
    bool failed_ = false;
};

/// The line of a statement, without its line end.
std::string traceLine(const tracing::Statement& statement);

} // namespace tellurix::standin
