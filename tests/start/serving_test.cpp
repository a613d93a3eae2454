#include "start/Program.h"

#include <gtest/gtest.h>

#include <csignal>
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
