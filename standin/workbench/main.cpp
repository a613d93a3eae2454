#include "standin/workbench/CommandLine.h"
#include "standin/workbench/SqlCommand.h"
#include "standin/workbench/serve.h"

#include <exception>
#include <iostream>
#include <string>
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
    case CommandLine::Command::serve:
        break;
    }
    return tellurix::standin::serve(line, std::cout);
}

} // namespace

int main(int count, char** arguments) {
    try {
        return run(CommandLine::parse(std::vector<std::string>{arguments + 1, arguments + count}));
    } catch (const tellurix::standin::UsageError& error) {
        std::cerr << "tellurix-workbench: " << error.what() << "\nSee tellurix-workbench --help.\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "tellurix-workbench: " << error.what() << "\n";
        return 1;
    }
}
