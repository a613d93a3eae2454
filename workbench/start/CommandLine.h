#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace tellurix::workbench {

/// What the program was asked to do, and with which settings.
struct CommandLine {
    enum class Command { serve, sql, help, version };

    Command command = Command::serve;
    std::string database;  ///< file; empty for the default one
    std::string traceFile; ///< empty for none

    // Serving: the browser's port and the session record's values.
    std::uint16_t port = 0; ///< 0 takes a free one
    std::string language = "de";
    std::string site;
    std::string homeCurrency = "CHF";
    std::string user; ///< empty for the name of the signed-on user
    int accessLevel = 0;
    std::map<std::string, std::string> settings; ///< named settings that replace those in the database

    // sql: where the texts come from; with neither file nor texts, from standard input.
    bool emptyDatabase = false; ///< a missing database is made without schema and sample data
    std::string textFile;
    std::vector<std::string> texts;

    /// @param arguments without the program's name
    /// @throws UsageError
    static CommandLine parse(std::span<const char* const> arguments);
    /// What `--help` prints.
    static std::string help();
};

/// Thrown for a command line that asks for nothing the program can do; the message says what is
/// wrong with it.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tellurix::workbench
