#include "standin/workbench/CommandLine.h"

#include <limits>

namespace tellurix::standin {

namespace {

constexpr int mostSessions = 10'000;

} // namespace

Options CommandLine::commonOptions() {
    return {
        databaseOption(),
        {"--trace", "FILE", "append every statement to FILE, one JSON object a line",
         [this](const std::string& value) { traceFile = notEmpty("--trace", value); }},
        {"--help", "", "print this", [this](const std::string&) { command = Command::help; }},
        {"--version", "", "print the version", [this](const std::string&) { command = Command::version; }}};
}

Options CommandLine::servingOptions() {
    Options options{{"--port", "N", "the port on 127.0.0.1 (default: a free one)",
                     [this](const std::string& value) {
                         port = static_cast<std::uint16_t>(
                             numberOf("--port", value, std::numeric_limits<std::uint16_t>::max()));
                     }},
                    {"--sessions", "N", "how many sessions may be open at once (default: 256)",
                     [this](const std::string& value) {
                         sessions = static_cast<std::size_t>(numberOf("--sessions", value, mostSessions, 1));
                     }}};
    const Options others = sessionOptions();
    options.insert(options.end(), others.begin(), others.end());
    return options;
}

Options CommandLine::sqlOptions() {
    return {{"--empty", "", "make a missing database without schema and sample data",
             [this](const std::string&) { emptyDatabase = true; }},
            {"--file", "FILE", "read the texts from FILE, cut at lines that hold only GO",
             [this](const std::string& value) { textFile = notEmpty("--file", value); }}};
}

void CommandLine::takeText(const std::string& argument) {
    if (command == Command::sql)
        texts.push_back(argument);
    else if (argument == "sql")
        command = Command::sql;
    else
        throw UsageError{"unknown command \"" + argument + "\""};
}

CommandLine CommandLine::parse(std::span<const std::string> arguments) {
    CommandLine line;
    const Options forBoth = line.commonOptions();
    const Options forServing = line.servingOptions();
    const Options forSql = line.sqlOptions();
    std::string servingOption;
    std::string sqlOption;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsEnded || !argument.starts_with("-")) {
            line.takeText(argument);
        } else if (argument == "--") {
            optionsEnded = true;
        } else if (takeOption(forBoth, arguments, i)) {
            if (line.command == Command::help || line.command == Command::version) break;
        } else if (takeOption(forServing, arguments, i)) {
            servingOption = argument.substr(0, argument.find('='));
        } else if (takeOption(forSql, arguments, i)) {
            sqlOption = argument.substr(0, argument.find('='));
        } else {
            throw UsageError{"unknown option " + argument.substr(0, argument.find('=')) +
                             " (a text that starts with \"-\" goes behind a \"--\")"};
        }
    }
    if (line.command == Command::sql && !servingOption.empty())
        throw UsageError{servingOption + " has no meaning for sql"};
    if (line.command == Command::serve && !sqlOption.empty())
        throw UsageError{sqlOption + " is for sql only"};
    if (line.command == Command::sql && !line.texts.empty() && !line.textFile.empty())
        throw UsageError{"sql takes texts or --file, not both"};
    return line;
}

std::string CommandLine::help() {
    CommandLine line;
    return "tellurix-workbench [OPTIONS]\n"
           "  Serves the contract screens to a browser and prints the address to open.\n"
           "tellurix-workbench sql [OPTIONS] [TEXT ...]\n"
           "  Sends each TEXT as one statement text and prints one JSON object a line for it. Without\n"
           "  TEXT and --file the texts come from standard input, cut like a file. Exit status 1 when\n"
           "  a text failed, 2 when the command line is wrong.\n"
           "\n" +
           describe(line.commonOptions()) + "\nServing:\n" + describe(line.servingOptions()) + "\nsql:\n" +
           describe(line.sqlOptions());
}

} // namespace tellurix::standin
