#pragma once

#include "home/SessionOptions.h"

#include <span>
#include <string>

namespace tellurix::windows {

/// What the host program was asked to do, and with which settings.
struct HostOptions : workbench::SessionOptions {
    enum class Task { work, registerLibraries, unregisterLibraries };

    Task task = Task::work;
    std::string connection; ///< ADO connection string; empty for the embedded database

    /// @param arguments without the program's name, UTF-8
    /// @throws workbench::UsageError that says what is wrong, and lists the options
    static HostOptions parse(std::span<const std::string> arguments);

private:
    workbench::Options options();
};

} // namespace tellurix::windows
