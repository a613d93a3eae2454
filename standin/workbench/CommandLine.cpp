#include "standin/workbench/CommandLine.h"

#include "standin/home/database_file.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace tellurix::standin {

namespace {

constexpr int mostSessions = 10'000;

} // namespace

std::string CommandLine::server() const {
    return database.starts_with(serverMark) ? database.substr(serverMark.size()) : std::string{};
}

Option CommandLine::databaseOrServer() {
    return {
        "--database", "FILE|odbc:X",
        "the database file, made when missing (default: tellurix.db in\nthe user's data folder), or a SQL Server: "
        "\"odbc:\" and a\nconnection string, a data source, or @FILE that holds one and\nis its owner's alone "
        "(mode 0600)",
        [this](const std::string& value) {
            if (isConnectionString(value) && !value.starts_with(serverMark))
                throw UsageError{"--database takes a connection to a SQL Server with \"odbc:\" before it"};
            if (value == serverMark) throw UsageError{"--database odbc: needs a connection string"};
            database = notEmpty("--database", value);
        }};
}

Options CommandLine::commonOptions() {
    return {
        databaseOrServer(),
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

Options CommandLine::prepareOptions() {
    return {{"--sample", "",
             "every table of the schema, and the sample trade when none of\nthem has rows or lacks columns",
             [this](const std::string&) { withSample = true; }}};
}

void CommandLine::takeText(const std::string& argument) {
    if (command == Command::sql)
        texts.push_back(argument);
    else if (command == Command::serve && argument == "sql")
        command = Command::sql;
    else if (command == Command::serve && argument == "prepare")
        command = Command::prepare;
    else
        throw UsageError{"unknown command \"" + argument + "\""};
}

CommandLine CommandLine::parse(std::span<const std::string> arguments) {
    CommandLine line;
    const Options common = line.commonOptions();
    struct Own {
        Command command;
        const char* name;
        Options options;
        std::string given = {}; ///< the last one that was
    };
    Own own[] = {{Command::serve, "", line.servingOptions()},
                 {Command::sql, "sql", line.sqlOptions()},
                 {Command::prepare, "prepare", line.prepareOptions()}};
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsEnded || !argument.starts_with("-")) {
            line.takeText(argument);
        } else if (argument == "--") {
            optionsEnded = true;
        } else if (takeOption(common, arguments, i)) {
            if (line.command == Command::help || line.command == Command::version) return line;
        } else if (const auto taker = std::ranges::find_if(
                       own, [&](const Own& some) { return takeOption(some.options, arguments, i); });
                   taker != std::end(own)) {
            taker->given = argument.substr(0, argument.find('='));
        } else {
            throw UsageError{"unknown option " + argument.substr(0, argument.find('=')) +
                             " (a text that starts with \"-\" goes behind a \"--\")"};
        }
    }
    for (const Own& some : own) {
        if (line.command == some.command || some.given.empty()) continue;
        if (some.command != Command::serve) throw UsageError{some.given + " is for " + some.name + " only"};
        throw UsageError{some.given + " has no meaning for " +
                         std::ranges::find(own, line.command, &Own::command)->name};
    }
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
           "tellurix-workbench prepare [OPTIONS]\n"
           "  Makes the tables that the workbench itself needs where they are missing, and says what it\n"
           "  did. Nothing that is there is changed.\n"
           "\n" +
           describe(line.commonOptions()) + "\nServing:\n" + describe(line.servingOptions()) + "\nsql:\n" +
           describe(line.sqlOptions()) + "\nprepare:\n" + describe(line.prepareOptions());
}

} // namespace tellurix::standin
