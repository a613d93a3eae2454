#pragma once

#include "standin/home/SessionOptions.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tellurix::standin {

/// What the program was asked to do, and with which settings.
struct CommandLine : SessionOptions {
    enum class Command { serve, sql, prepare, help, version };

    Command command = Command::serve;
    std::string traceFile;      ///< empty for none
    std::uint16_t port = 0;     ///< of the browser; 0 takes a free one
    std::size_t sessions = 256; ///< so many at once, at most

    // sql: where the texts come from; with neither file nor texts, from standard input.
    bool emptyDatabase = false; ///< a missing database is made without schema and sample data
    std::string textFile;
    std::vector<std::string> texts;

    bool withSample = false; ///< prepare: the whole schema and the sample trade

    /// What is behind "odbc:" where `--database` names a server; empty otherwise.
    std::string server() const;

    /// @param arguments without the program's name
    /// @throws UsageError
    static CommandLine parse(std::span<const std::string> arguments);
    /// What `--help` prints.
    static std::string help();

private:
    Options commonOptions();
    Options servingOptions();
    Options sqlOptions();
    Options prepareOptions();
    Option databaseOrServer();
    /// Takes what is no option.
    void takeText(const std::string& argument);
};

} // namespace tellurix::standin
