#include "tests/standin/workbench/Program.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <regex>
#include <sstream>

namespace tellurix::tests {
namespace {

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream stream{text};
    for (std::string line; std::getline(stream, line);)
        result.push_back(line);
    return result;
}

class SqlCommand : public testing::Test {
protected:
    /// Runs `sql` on an empty database, or on the one that an earlier run left there.
    std::unique_ptr<Program> sql(std::vector<std::string> arguments, const std::string& input = {}) {
        arguments.insert(arguments.begin(), {"sql", "--empty", "--database", folder / "test.db"});
        auto program = std::make_unique<Program>(folder, arguments, input);
        program->wait();
        EXPECT_EQ(program->errors(), "");
        return program;
    }

    TestFolder folder;
};

TEST_F(SqlCommand, WritesOneLineForEachText) {
    struct Case {
        const char* rule;
        const char* text;
        const char* line;
    };
    const Case cases[] = {
        {"a table is made",
         "CREATE TABLE T (ID int IDENTITY(1,1) PRIMARY KEY, N nvarchar(20), D decimal(18,4), B bit, W datetime, F float)",
         R"({"rowcount": -1})"},
        {"changed rows are counted",
         "INSERT INTO T (N,D,B,W,F) VALUES (N'Öl \"fein\" \\ ''x''',12.50,1,'05.06.2025',0.1),"
         "(NULL,NULL,0,'05.06.2025 07:08:09',NULL)",
         R"({"rowcount": 2})"},
        {"every kind of value", "SELECT ID,N,D,B,W,F FROM T ORDER BY ID",
         R"({"columns": ["ID", "N", "D", "B", "W", "F"], "rows": [[1, "Öl \"fein\" \\ 'x'", 12.5000, true, "2025-06-05T00:00:00", 0.1], [2, null, null, false, "2025-06-05T07:08:09", null]]})"},
        {"no rows", "SELECT ID FROM T WHERE ID = 9", R"({"columns": ["ID"], "rows": []})"},
        {"digits that a binary number would lose", "SELECT CONVERT(decimal(18,4), 12345678901234.5678) AS D",
         R"({"columns": ["D"], "rows": [[12345678901234.5678]]})"},
        {"milliseconds are shown when there are some", "SELECT W FROM T WHERE ID = 3",
         R"({"columns": ["W"], "rows": [["2025-06-05T07:08:09.120"]]})"},
        {"a batch answers with its last query",
         "Declare @n int\r\nSET @n = 2\r\nWHILE @n < 4\r\nbegin\r\nSET @n = @n + 1\r\nend\r\nSELECT @n AS N",
         R"({"columns": ["N"], "rows": [[4]]})"},
    };
    std::vector<std::string> texts;
    for (const Case& row : cases) {
        if (std::string_view{row.text}.find("ID = 3") != std::string_view::npos)
            texts.emplace_back("INSERT INTO T (W) VALUES ('2025-06-05T07:08:09.120')");
        texts.emplace_back(row.text);
    }
    const auto program = sql(texts);
    EXPECT_EQ(program->wait(), 0);
    std::vector<std::string> answers = lines(program->output());
    ASSERT_EQ(answers.size(), texts.size());
    std::size_t answer = 0;
    for (const Case& row : cases) {
        while (texts[answer] != row.text)
            ++answer;
        EXPECT_EQ(answers[answer], row.line) << row.rule;
        EXPECT_TRUE(nlohmann::json::accept(answers[answer])) << row.rule;
    }
}

TEST_F(SqlCommand, GoesOnAfterAnErrorAndTellsWhereItWas) {
    const auto program = sql({"CREATE TABLE T (A int)", "SELECT A FRAM T", "SELECT NOPE FROM T",
                              "INSERT INTO T (A) VALUES ('abc')", "SELECT COUNT(*) AS N FROM T"});
    EXPECT_EQ(program->wait(), 1);
    const auto answers = lines(program->output());
    ASSERT_EQ(answers.size(), 5u);
    EXPECT_EQ(nlohmann::json::parse(answers[1])["error"]["position"], 14);
    const auto unknown = nlohmann::json::parse(answers[2])["error"];
    EXPECT_EQ(unknown["position"], 7);
    EXPECT_NE(unknown["message"].get<std::string>().find("NOPE"), std::string::npos);
    const auto conversion = nlohmann::json::parse(answers[3])["error"];
    EXPECT_FALSE(conversion["message"].get<std::string>().empty());
    EXPECT_TRUE(conversion["position"].is_null() || conversion["position"].is_number_unsigned());
    EXPECT_EQ(answers[4], R"({"columns": ["N"], "rows": [[0]]})");
}

TEST_F(SqlCommand, CutsFilesAndStandardInputAtGo) {
    const std::string script =
        "CREATE TABLE T (N nvarchar(20))\r\n  go  \r\nINSERT INTO T (N) VALUES ('\r\nGOLD')\n"
        "INSERT INTO T (N) VALUES ('zwei')\nGO\nGO\n\nSELECT COUNT(*) AS N FROM T";
    folder.write("script.sql", "\xEF\xBB\xBF" + script);
    const auto fromFile = sql({"--file", folder / "script.sql"});
    EXPECT_EQ(fromFile->wait(), 0);
    EXPECT_EQ(lines(fromFile->output()).size(), 3u) << fromFile->output();
    EXPECT_EQ(lines(fromFile->output()).back(), R"({"columns": ["N"], "rows": [[2]]})");

    const auto fromInput = sql({}, "DROP TABLE T\nGO\n" + script);
    EXPECT_EQ(fromInput->wait(), 0);
    EXPECT_EQ(lines(fromInput->output()).size(), 4u) << fromInput->output();
}

TEST_F(SqlCommand, MakesAMissingDatabaseWithSampleDataOrEmpty) {
    Program sample{folder,
                   {"sql", "--database", folder / "sample.db", "SELECT COUNT(*) AS N FROM VERTRAEGE"}};
    EXPECT_EQ(sample.wait(), 0) << sample.errors();
    EXPECT_EQ(sample.output(), "{\"columns\": [\"N\"], \"rows\": [[23]]}\n");

    // In the user's data folder when no file is named.
    Program atHome{folder, {"sql", "SELECT COUNT(*) AS N FROM VERTRAEGE"}};
    EXPECT_EQ(atHome.wait(), 0) << atHome.errors();
    EXPECT_EQ(atHome.output(), sample.output());
    EXPECT_TRUE(std::filesystem::exists(folder / "home/.local/share/tellurix-workbench/tellurix.db"));

    const auto empty = sql({"SELECT COUNT(*) AS N FROM VERTRAEGE"});
    EXPECT_EQ(empty->wait(), 1);
    EXPECT_NE(empty->output().find("VERTRAEGE"), std::string::npos);

    const auto files = folder.files();
    for (const std::string& file : files)
        EXPECT_EQ(file.find(".new"), std::string::npos) << file << " was left behind";
}

TEST_F(SqlCommand, BuildsTheDatabaseOnceWhenSeveralStartAtOnce) {
    std::vector<std::unique_ptr<Program>> programs;
    for (int i = 0; i < 3; ++i) {
        programs.push_back(std::make_unique<Program>(
            folder, std::vector<std::string>{"sql", "--database", folder / "new.db",
                                             "INSERT INTO VERTRAEGE (VERTRAG_NAME) VALUES ('x')"}));
    }
    for (const auto& program : programs) {
        EXPECT_EQ(program->wait(), 0) << program->errors() << program->output();
    }
    Program count{folder, {"sql", "--database", folder / "new.db", "SELECT COUNT(*) AS N FROM VERTRAEGE"}};
    count.wait();
    EXPECT_EQ(count.output(), "{\"columns\": [\"N\"], \"rows\": [[26]]}\n");
}

TEST_F(SqlCommand, ReportsWhatKeepsItFromRunning) {
    struct Case {
        const char* rule;
        std::vector<std::string> arguments;
        int status;
    };
    const Case cases[] = {
        {"a wrong command line", {"sql", "--port", "1", "SELECT 1"}, 2},
        {"a SQL Server connection", {"sql", "--database", "Driver={x};Server=y", "SELECT 1"}, 2},
        {"a folder that is not there", {"sql", "--database", folder / "none/test.db", "SELECT 1"}, 1},
        {"a file that is not there", {"sql", "--empty", "--database", folder / "a.db", "--file", "none"}, 1},
    };
    for (const Case& row : cases) {
        Program program{folder, row.arguments};
        EXPECT_EQ(program.wait(), row.status) << row.rule;
        EXPECT_EQ(program.output(), "") << row.rule;
        EXPECT_TRUE(program.errors().starts_with("tellurix-workbench: ")) << row.rule << program.errors();
    }
}

TEST_F(SqlCommand, TracesEveryStatementAsALine) {
    sql({"--trace", folder / "trace.jsonl", "CREATE TABLE T (A int)", "INSERT INTO T (A)\nVALUES (1)",
         "SELECT \"ä\" FROM NOWHERE"});
    sql({"--trace", folder / "trace.jsonl", "SELECT A FROM T"});
    std::vector<nlohmann::json> traced;
    for (const std::string& line : lines(folder.read("trace.jsonl")))
        traced.push_back(nlohmann::json::parse(line));
    ASSERT_EQ(traced.size(), 4u);
    EXPECT_EQ(traced[1]["statement"], "INSERT INTO T (A)\nVALUES (1)");
    EXPECT_EQ(traced[1]["rows"], 1);
    EXPECT_TRUE(traced[1]["error"].is_null());
    EXPECT_TRUE(traced[2]["error"].is_string());
    EXPECT_TRUE(traced[2]["rows"].is_null());
    EXPECT_TRUE(traced[3]["rows"].is_null());
    EXPECT_GE(traced[3]["ms"].get<double>(), 0.0);
    EXPECT_TRUE(std::regex_match(traced[0]["time"].get<std::string>(),
                                 std::regex{R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)"}))
        << traced[0]["time"];
}

} // namespace
} // namespace tellurix::tests
