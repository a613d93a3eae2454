#pragma once

#include "standin/home/SessionOptions.h"

#include <span>
#include <string>

namespace tellurix::windows {

/// What the host program was asked to do, and with which settings.
struct HostOptions : standin::SessionOptions {
    enum class Task { work, registerLibraries, unregisterLibraries };

    Task task = Task::work;
    std::string connection; ///< ADO connection string; empty for the embedded database

    /// @param arguments without the program's name, UTF-8
    /// @throws standin::UsageError that says what is wrong, and lists the options
    static HostOptions parse(std::span<const std::string> arguments);

private:
    standin::Options options();
};

} // namespace tellurix::windows
