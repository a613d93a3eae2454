#include "start/CommandLine.h"

#include "home/database_file.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace tellurix::workbench {

namespace {

/// What an option is good for.
enum class For { both, serving, sql };

struct Option {
    std::string_view name;
    std::string_view value; ///< what stands behind the name, empty for an option without a value
    For use;
    std::string_view meaning;
    void (*set)(CommandLine& line, const std::string& value);
};

int number(std::string_view option, const std::string& text, int greatest) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < 0 || value > greatest) {
        throw UsageError{std::string{option} + " needs a number from 0 to " + std::to_string(greatest) +
                         ", not \"" + text + "\""};
    }
    return value;
}

std::string notEmpty(std::string_view option, const std::string& text) {
    if (text.empty()) throw UsageError{std::string{option} + " needs a value that is not empty"};
    return text;
}

void setDatabase(CommandLine& line, const std::string& value) {
    if (isConnectionString(value)) {
        throw UsageError{"--database: a connection to a SQL Server is not part of this version yet; "
                         "name a database file"};
    }
    line.database = notEmpty("--database", value);
}

void setLanguage(CommandLine& line, const std::string& value) {
    if (value != "de" && value != "en") throw UsageError{"--language is de or en, not \"" + value + "\""};
    line.language = value;
}

void addSetting(CommandLine& line, const std::string& value) {
    const std::size_t equals = value.find('=');
    if (equals == 0 || equals == std::string::npos)
        throw UsageError{"--setting needs NAME=VALUE, not \"" + value + "\""};
    line.settings[value.substr(0, equals)] = value.substr(equals + 1);
}

using Line = CommandLine;
using Text = const std::string;

// clang-format off
constexpr std::array options{
    Option{"--database", "FILE", For::both, "the database; made when missing. Default: tellurix.db in the\nuser's data folder", setDatabase},
    Option{"--trace", "FILE", For::both, "append every statement to FILE, one JSON object a line", [](Line& line, Text& v) { line.traceFile = notEmpty("--trace", v); }},
    Option{"--port", "N", For::serving, "the port on 127.0.0.1 (default: a free one)", [](Line& line, Text& v) { line.port = static_cast<std::uint16_t>(number("--port", v, 65535)); }},
    Option{"--language", "de|en", For::serving, "the language to start in (default: de)", setLanguage},
    Option{"--site", "TEXT", For::serving, "the site, such as WVO (default: none)", [](Line& line, Text& v) { line.site = v; }},
    Option{"--currency", "TEXT", For::serving, "the home currency beside EUR (default: CHF)", [](Line& line, Text& v) { line.homeCurrency = notEmpty("--currency", v); }},
    Option{"--setting", "NAME=VALUE", For::serving, "a host setting instead of the stored one, such as MESZAHL=1;\ncan be given several times", addSetting},
    Option{"--access-level", "N", For::serving, "the user's access level (default: 0, none)", [](Line& line, Text& v) { line.accessLevel = number("--access-level", v, std::numeric_limits<int>::max()); }},
    Option{"--user", "NAME", For::serving, "the user's name (default: who is signed on)", [](Line& line, Text& v) { line.user = notEmpty("--user", v); }},
    Option{"--empty", "", For::sql, "make a missing database without schema and sample data", [](Line& line, Text&) { line.emptyDatabase = true; }},
    Option{"--file", "FILE", For::sql, "read the texts from FILE, cut at lines that hold only GO", [](Line& line, Text& v) { line.textFile = notEmpty("--file", v); }},
    Option{"--help", "", For::both, "print this", [](Line& line, Text&) { line.command = Line::Command::help; }},
    Option{"--version", "", For::both, "print the version", [](Line& line, Text&) { line.command = Line::Command::version; }},
};
// clang-format on

const Option& findOption(std::string_view name) {
    for (const Option& option : options) {
        if (option.name == name) return option;
    }
    throw UsageError{"unknown option " + std::string{name} +
                     " (a text that starts with \"-\" goes behind a \"--\")"};
}

std::string describe(For use) {
    std::string text;
    for (const Option& option : options) {
        if (option.use != use) continue;
        std::string head = "  " + std::string{option.name};
        if (!option.value.empty()) head += " " + std::string{option.value};
        head.resize(24, ' ');
        for (const char character : option.meaning) {
            head += character;
            if (character == '\n') head += std::string(24, ' ');
        }
        text += head + "\n";
    }
    return text;
}

} // namespace

CommandLine CommandLine::parse(std::span<const char* const> arguments) {
    CommandLine line;
    std::optional<std::string_view> servingOption;
    std::optional<std::string_view> sqlOption;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
            continue;
        }
        if (optionsEnded || !argument.starts_with("-")) {
            if (line.command == Command::sql) {
                line.texts.emplace_back(argument);
            } else if (argument == "sql" && line.command == Command::serve) {
                line.command = Command::sql;
            } else {
                throw UsageError{"unknown command \"" + std::string{argument} + "\""};
            }
            continue;
        }
        const std::size_t equals = argument.find('=');
        const Option& option = findOption(argument.substr(0, equals));
        std::string value;
        if (option.value.empty()) {
            if (equals != std::string_view::npos)
                throw UsageError{std::string{option.name} + " takes no value"};
        } else if (equals != std::string_view::npos) {
            value = argument.substr(equals + 1);
        } else if (i + 1 < arguments.size()) {
            value = arguments[++i];
        } else {
            throw UsageError{std::string{option.name} + " needs a value: " + std::string{option.value}};
        }
        if (option.use == For::serving) servingOption = option.name;
        if (option.use == For::sql) sqlOption = option.name;
        option.set(line, value);
        if (line.command == Command::help || line.command == Command::version) return line;
    }
    if (line.command == Command::sql && servingOption)
        throw UsageError{std::string{*servingOption} + " has no meaning for sql"};
    if (line.command == Command::serve && sqlOption)
        throw UsageError{std::string{*sqlOption} + " is for sql only"};
    if (!line.texts.empty() && !line.textFile.empty())
        throw UsageError{"sql takes texts or --file, not both"};
    return line;
}

std::string CommandLine::help() {
    return "tellurix-workbench [OPTIONS]\n"
           "  Serves the contract screens to a browser and prints the address to open.\n"
           "tellurix-workbench sql [OPTIONS] [TEXT ...]\n"
           "  Sends each TEXT as one statement text and prints one JSON object a line for it. Without\n"
           "  TEXT and --file the texts come from standard input, cut like a file. Exit status 1 when\n"
           "  a text failed, 2 when the command line is wrong.\n"
           "\n" +
           describe(For::both) + "\nServing:\n" + describe(For::serving) + "\nsql:\n" + describe(For::sql);
}

} // namespace tellurix::workbench
