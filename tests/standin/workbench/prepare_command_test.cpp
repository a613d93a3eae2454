// The database of an office: making what the workbench needs in it, and telling what is wrong with the
// server.
#include "tests/standin/workbench/Program.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

class PrepareCommand : public testing::Test {
protected:
    std::string run(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--database", folder_ / "test.db"});
        Program program{folder_, arguments};
        EXPECT_EQ(program.wait(), 0) << program.errors();
        return program.output();
    }
    static bool has(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }

    TestFolder folder_;
};

TEST_F(PrepareCommand, MakesTheWorkbenchsOwnTablesAndLeavesWhatIsThere) {
    // The host's table, and one of the workbench's with less than it should have.
    run({"sql", "--empty", "CREATE TABLE VERTRAEGE (ID_VERTRAG int, ANDERS int)",
         "CREATE TABLE WORKBENCH_MODEL (ID_MODEL int IDENTITY(1,1) NOT NULL PRIMARY KEY, CATEGORY nvarchar(20) NOT NULL)"});
    const std::string first = run({"prepare"});
    EXPECT_TRUE(has(first, "made: WORKBENCH_SETTING, WORKBENCH_GRID_LAYOUT, WORKBENCH_MODEL_LINE\n"))
        << first;
    EXPECT_TRUE(has(first, "there already, and left as they are: WORKBENCH_MODEL\n")) << first;
    EXPECT_TRUE(has(first, "lacking, and left to you: ALTER TABLE WORKBENCH_MODEL ADD MODEL nvarchar(60)"))
        << first;
    EXPECT_FALSE(has(run({"prepare"}), "made:"));
    EXPECT_EQ(
        run({"sql", "SELECT * FROM VERTRAEGE", "SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA'"})
            .substr(0, 60),
        "{\"columns\": [\"ID_VERTRAG\", \"ANDERS\"], \"rows\": []}\n{\"columns\"");

    const std::string second = run({"prepare", "--sample"});
    EXPECT_TRUE(has(second, "made: VERTRAG_PREISE, ")) << second;
    EXPECT_TRUE(has(second, "VERTRAEGE, WORKBENCH_SETTING")) << second;
    EXPECT_TRUE(has(second, "the sample trade was not put in")) << second;
    EXPECT_EQ(run({"sql", "SELECT COUNT(*) AS N FROM VERTRAG_PREISE"}),
              "{\"columns\": [\"N\"], \"rows\": [[0]]}\n");
}

TEST_F(PrepareCommand, PutsTheSampleIntoEmptyTables) {
    run({"sql", "--empty", "SELECT 1 AS N"});
    run({"prepare"});
    const std::string said = run({"prepare", "--sample"});
    EXPECT_TRUE(has(said, "made: VERTRAEGE, ") && has(said, "filled with the sample trade")) << said;
    EXPECT_TRUE(has(run({"prepare", "--sample"}), "the sample trade was not put in"));
    EXPECT_EQ(run({"sql", "SELECT COUNT(*) AS N FROM VERTRAEGE"}),
              "{\"columns\": [\"N\"], \"rows\": [[23]]}\n");
}

TEST(ServerOfAnOffice, ThatCannotBeReachedIsToldWithoutThePassword) {
    const TestFolder folder;
    folder.write("secret", "DRIVER={PostgreSQL Unicode}\nSERVER=127.0.0.1\nPORT=1\nPWD=geheim\n");
    std::filesystem::permissions(folder / "secret", std::filesystem::perms::owner_read);
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{}, {"sql", "SELECT 1"}, {"prepare"}}) {
        for (const std::string& server :
             {std::string{"odbc:SERVER=127.0.0.1;PORT=1;UID=x;PWD=geheim"}, "odbc:@" + folder / "secret"}) {
            std::vector<std::string> arguments = command;
            arguments.insert(arguments.end(), {"--trace", folder / "trace", "--database", server});
            Program program{folder, arguments};
            EXPECT_EQ(program.wait(), 1);
            EXPECT_TRUE(
                program.errors().starts_with("tellurix-workbench: The database server cannot be reached ("))
                << program.errors();
            EXPECT_EQ((program.errors() + program.output() + folder.read("trace")).find("geheim"),
                      std::string::npos);
        }
    }
    std::filesystem::permissions(folder / "secret", std::filesystem::perms::others_read,
                                 std::filesystem::perm_options::add);
    Program open{folder, {"--database", "odbc:@" + folder / "secret"}};
    EXPECT_EQ(open.wait(), 1);
    EXPECT_NE(open.errors().find("chmod 600"), std::string::npos) << open.errors();
}

} // namespace
} // namespace tellurix::tests
