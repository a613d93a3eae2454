#include "standin/windows_host/HostOptions.h"

#include <algorithm>

namespace tellurix::windows {

using standin::UsageError;

standin::Options HostOptions::options() {
    standin::Options options{databaseOption(),
                             {"--connection", "TEXT", "an ADO connection instead of a file",
                              [this](const std::string& value) { connection = value; }},
                             {"--register", "", "register the two libraries beside the program",
                              [this](const std::string&) { task = Task::registerLibraries; }},
                             {"--unregister", "", "take them out again",
                              [this](const std::string&) { task = Task::unregisterLibraries; }}};
    std::ranges::move(sessionOptions(), std::back_inserter(options));
    return options;
}

HostOptions HostOptions::parse(std::span<const std::string> arguments) {
    HostOptions parsed;
    const standin::Options known = parsed.options();
    try {
        for (std::size_t i = 0; i < arguments.size(); ++i)
            if (!standin::takeOption(known, arguments, i)) throw UsageError{"unknown option " + arguments[i]};
    } catch (const UsageError& error) {
        throw UsageError{error.what() + ("\n\n" + standin::describe(known))};
    }
    return parsed;
}

} // namespace tellurix::windows
