#include "standin/home/database_file.h"
#include "standin/workbench/CommandLine.h"
#include "standin/workbench/SqlCommand.h"
#include "standin/workbench/serve.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using tellurix::standin::CommandLine;

int run(const CommandLine& line) {
    switch (line.command) {
    case CommandLine::Command::help:
        std::cout << CommandLine::help();
        return 0;
    case CommandLine::Command::version:
        std::cout << "tellurix-workbench " << TELLURIX_VERSION << "\n";
        return 0;
    case CommandLine::Command::sql:
        return tellurix::standin::runSql(line, std::cin, std::cout);
    case CommandLine::Command::prepare:
        return tellurix::standin::runPrepare(line, std::cout);
    case CommandLine::Command::serve:
        break;
    }
    return tellurix::standin::serve(line, std::cout);
}

/// The list of processes shows every user's command lines to every user; a connection string may have a
/// password.
void hideConnectionString(int count, char** arguments) {
    using tellurix::standin::serverMark;
    for (int i = 1; i < count; ++i) {
        const std::string_view word{arguments[i]};
        const std::size_t mark = word.find(serverMark);
        if (mark != std::string_view::npos)
            std::fill(arguments[i] + mark + serverMark.size(), arguments[i] + word.size(), '*');
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const std::vector<std::string> words{arguments + 1, arguments + count};
        hideConnectionString(count, arguments);
        return run(CommandLine::parse(words));
    } catch (const tellurix::standin::UsageError& error) {
        std::cerr << "tellurix-workbench: " << error.what() << "\nSee tellurix-workbench --help.\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "tellurix-workbench: " << error.what() << "\n";
        return 1;
    }
}
