#include "standin/workbench/CommandLine.h"

#include <gtest/gtest.h>

namespace tellurix::standin {
namespace {

CommandLine parse(const std::vector<std::string>& arguments) {
    return CommandLine::parse(arguments);
}

TEST(CommandLineParsing, TakesEveryOption) {
    const CommandLine serving = parse({"--database", "a=b.db", "--port=8080", "--sessions", "12", "--trace",
                                       "t", "--language", "en", "--site", "WVO", "--currency", "USD",
                                       "--setting", "MESZAHL=1", "--access-level", "5", "--user", "Jörg"});
    EXPECT_EQ(serving.command, CommandLine::Command::serve);
    EXPECT_EQ(serving.database, "a=b.db");
    EXPECT_EQ(serving.port, 8080);
    EXPECT_EQ(serving.sessions, 12U);
    EXPECT_EQ(parse({}).sessions, 256U);
    EXPECT_EQ(serving.traceFile, "t");
    EXPECT_EQ(serving.language, "en");
    EXPECT_EQ(serving.site, "WVO");
    EXPECT_EQ(serving.settings.at("MESZAHL"), "1");
    EXPECT_EQ(serving.homeCurrency, "USD");
    EXPECT_EQ(serving.accessLevel, 5);
    EXPECT_EQ(serving.user, "Jörg");

    EXPECT_EQ(serving.server(), "");
    EXPECT_EQ(parse({"--database", "odbc:DSN=Büro;UID=x"}).server(), "DSN=Büro;UID=x");
    const CommandLine prepare = parse({"prepare", "--sample", "--database", "odbc:@x"});
    EXPECT_EQ(prepare.command, CommandLine::Command::prepare);
    EXPECT_TRUE(prepare.withSample);
    const CommandLine sql = parse({"--trace", "t", "sql", "A", "--empty", "--", "-- B", "--empty"});
    EXPECT_EQ(sql.command, CommandLine::Command::sql);
    EXPECT_TRUE(sql.emptyDatabase);
    EXPECT_EQ(sql.texts, (std::vector<std::string>{"A", "-- B", "--empty"}));
    // Who asks for help gets it, whatever stands before.
    EXPECT_EQ(parse({"--port", "1", "--help"}).command, CommandLine::Command::help);
    EXPECT_EQ(parse({"--empty", "--version", "more"}).command, CommandLine::Command::version);
}

TEST(CommandLineParsing, RefusesWhatMeansNothing) {
    struct Case {
        const char* rule;
        std::vector<std::string> arguments;
        const char* message;
    };
    const Case cases[] = {
        {"an unknown option", {"--colour"}, "--colour"},
        {"an unknown command", {"serve"}, "\"serve\""},
        {"a text without sql", {"SELECT 1"}, "SELECT 1"},
        {"a missing value", {"--port"}, "--port"},
        {"a value where none belongs", {"sql", "--empty=1"}, "--empty"},
        {"a port that is no number", {"--port", "80x"}, "80x"},
        {"a port beyond the last", {"--port", "65536"}, "65535"},
        {"no session", {"--sessions", "0"}, "1 to"},
        {"a negative access level", {"--access-level", "-1"}, "-1"},
        {"a language that is not there", {"--language", "fr"}, "fr"},
        {"a setting without a value", {"--setting", "MESZAHL"}, "NAME=VALUE"},
        {"an empty file name", {"--database", ""}, "--database"},
        {"a serving option for sql", {"sql", "--port", "1"}, "--port"},
        {"a sql option for serving", {"--file", "f"}, "--file"},
        {"texts and a file at once", {"sql", "A", "--file", "f"}, "--file"},
        {"a connection string", {"--database", "Server=x;Database=y"}, "odbc:"},
        {"a server without a name", {"--database=odbc:"}, "odbc:"},
        {"the sample for serving", {"--sample"}, "--sample"},
        {"a serving option for prepare", {"prepare", "--port", "1"}, "--port"},
        {"an sql option for prepare", {"prepare", "--empty"}, "--empty"},
        {"two commands", {"prepare", "sql"}, "sql"},
        {"a driver of a connection string", {"sql", "--database", "driver={X}"}, "SQL Server"},
    };
    for (const Case& row : cases) {
        try {
            parse(row.arguments);
            ADD_FAILURE() << row.rule << " was taken";
        } catch (const UsageError& error) {
            EXPECT_NE(std::string{error.what()}.find(row.message), std::string::npos)
                << row.rule << ": " << error.what();
        }
    }
}

} // namespace
} // namespace tellurix::standin
