#include "tests/standin/workbench/Program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <regex>

namespace tellurix::tests {
namespace {

TEST(Serving, PrintsTheAddressAndEndsCleanlyWhenAsked) {
    for (const int signal : {SIGTERM, SIGINT}) {
        const TestFolder folder;
        Program program{folder, {"--database", folder / "test.db"}};
        const std::string address = program.firstLine();
        EXPECT_TRUE(std::regex_match(address, std::regex{R"(http://127\.0\.0\.1:\d+/\?key=\w{16,})"}))
            << address << program.errors();
        program.signal(signal);
        EXPECT_EQ(program.wait(), 0) << "after signal " << signal;
        EXPECT_EQ(program.output(), address + "\n");
        EXPECT_EQ(program.errors(), "");
    }
}

TEST(Serving, AReadOnlyDatabaseIsToldAtTheStart) {
    const TestFolder folder;
    ASSERT_EQ(Program(folder, {"sql", "--empty", "--database", folder / "test.db", "CREATE TABLE T (N int)"})
                  .wait(),
              0);
    std::filesystem::permissions(folder / "test.db", std::filesystem::perms::owner_read);
    Program program{folder, {"--database", folder / "test.db"}};
    EXPECT_TRUE(program.firstLine().starts_with("http://"));
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait(), 0);
    EXPECT_NE(program.errors().find("test.db is read-only; nothing can be saved"), std::string::npos)
        << program.errors();
}

TEST(Serving, WhatStandsInTheWayIsNamed) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "folder");
    folder.write("file", "");
    Program first{folder, {"--database", folder / "first.db"}};
    const std::string address = first.firstLine();
    const std::string port = address.substr(17, address.find("/?") - 17);
    struct Case {
        const char* rule;
        std::vector<std::string> arguments;
        std::vector<std::string> named;
    };
    const Case cases[] = {
        {"a taken port", {"--database", folder / "first.db", "--port", port}, {"port " + port, "127.0.0.1"}},
        {"a missing folder",
         {"--database", folder / "none/test.db"},
         {folder / "none/test.db", folder / "none does"}},
        {"a file in place of the folder",
         {"--database", folder / "file/test.db"},
         {folder / "file/test.db", folder / "file is"}},
        {"a folder in place of the file",
         {"--database", folder / "folder"},
         {folder / "folder", "is a folder"}},
        {"a folder that takes nothing", {"--database", "/proc/test.db"}, {"database /proc/test.db"}},
        {"no place for the trace",
         {"--database", folder / "first.db", "--trace", folder / "none/t"},
         {folder / "none/t"}},
    };
    for (const Case& row : cases) {
        Program program{folder, row.arguments};
        EXPECT_EQ(program.wait(), 1) << row.rule;
        for (const std::string& name : row.named)
            EXPECT_NE(program.errors().find(name), std::string::npos) << row.rule << ": " << program.errors();
    }
}

TEST(Serving, ADatabaseThatIsNoneIsToldBeforeAnyBrowserComes) {
    const TestFolder folder;
    folder.write("test.db", "This is not a database, and far longer than one line of a text file would be.");
    Program program{folder, {"--database", folder / "test.db"}};
    EXPECT_EQ(program.wait(), 1);
    EXPECT_EQ(program.output(), "");
    EXPECT_TRUE(program.errors().starts_with("tellurix-workbench: ")) << program.errors();
}

} // namespace
} // namespace tellurix::tests
