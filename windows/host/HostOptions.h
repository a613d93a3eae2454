#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace tellurix::windows {

/// What the host program was asked to do, and with which settings.
struct HostOptions {
    enum class Task { work, registerLibraries, unregisterLibraries };

    Task task = Task::work;
    std::string database;   ///< file of the embedded database; empty for the default one
    std::string connection; ///< ADO connection string; empty for the embedded database
    std::string language = "de";
    std::string site;
    std::string homeCurrency = "CHF";
    std::string user; ///< empty for who is signed on
    int accessLevel = 0;

    /// @param arguments without the program's name, UTF-8
    /// @throws std::invalid_argument that says what is wrong, and lists the options
    static HostOptions parse(std::span<const std::string> arguments);
};

} // namespace tellurix::windows
