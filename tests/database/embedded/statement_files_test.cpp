// Runs every .test file of this folder and of corpus/ as one test.

#include "database/embedded/script.h"
#include "module/base/text.h"
#include "tests/database/embedded/EmbeddedTest.h"
#include "tests/database/embedded/StatementFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>
#include <utility>

namespace tellurix::embedded {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> statementFiles() {
    std::vector<fs::path> files;
    for (const fs::path& folder : {fs::path(TELLURIX_TEST_FOLDER), fs::path(TELLURIX_TEST_FOLDER "/corpus")})
        if (fs::exists(folder))
            for (const auto& entry : fs::directory_iterator(folder))
                if (entry.path().extension() == ".test") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string nameOf(base::FieldType type) {
    static constexpr std::array names{"flag",    "tinyInteger", "smallInteger", "integer", "bigInteger",
                                      "decimal", "floating",    "text",         "dateTime"};
    return names.at(static_cast<std::size_t>(type));
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Cuts at the commas that stand outside quotes.
std::vector<std::string> assignmentsIn(const std::string& text) {
    std::vector<std::string> parts(1);
    bool quoted = false;
    for (const char character : text) {
        quoted = quoted != (character == '\'');
        if (character == ',' && !quoted)
            parts.emplace_back();
        else
            parts.back() += character;
    }
    return parts;
}

/// "12", "1.50", "'text'" or "NULL".
base::Value valueWritten(const std::string& text) {
    if (text == "NULL") return {};
    if (text.starts_with('\'')) return text.substr(1, text.size() - 2);
    if (text.find('.') != std::string::npos) return base::Decimal::parse(text).value();
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

class StatementFiles : public EmbeddedTest, public testing::WithParamInterface<fs::path> {
protected:
    void load(const std::vector<std::string>& files) {
        for (const std::string& name : files)
            runScript(*connection_, readFile(fs::path(TELLURIX_TEST_FOLDER) / name));
    }

    void edit(const StatementBlock& block) {
        const auto rows = connection_->openUpdatable(block.statement);
        for (; !rows->atEnd(); rows->moveNext()) {
            if (block.removes) {
                rows->remove();
                continue;
            }
            for (const std::string& field : assignmentsIn(block.edit)) {
                const std::size_t equal = field.find(" = ");
                const std::size_t start = field.find_first_not_of(' ');
                rows->setField(field.substr(start, equal - start), valueWritten(field.substr(equal + 3)));
            }
            rows->update();
        }
    }

    static bool isEmbedded() { return std::string_view{adapter.database} == "embedded"; }
    static bool speaksTsql() { return std::string_view{adapter.database} != "postgresql"; }
    static bool concernsUs(const StatementBlock& block) {
        return (block.onlyOn.empty() || contains(block.onlyOn, adapter.database)) &&
               !contains(block.notOn, adapter.database);
    }
    static const std::vector<std::string>& expectationOf(const StatementBlock& block) {
        const auto deviation = block.deviations.find(adapter.database);
        return deviation == block.deviations.end() ? block.expected : deviation->second;
    }
    /// A server that writes names in small letters still has the columns that were asked for; one without a
    /// name has one of its own there.
    static std::string columnName(const std::string& name) {
        return speaksTsql() ? name : base::toUpper(name);
    }

    /// What the block answers, one line each, in the way that its expectation is written.
    std::vector<std::string> run(const StatementBlock& block) {
        std::vector<std::string> lines;
        if (block.edits || block.removes) {
            edit(block);
            return {"ok"};
        }
        const base::ExecuteResult result = connection_->execute(block.statement);
        if (!result.rows)
            return {expectationOf(block).front() == "ok" ? "ok"
                                                         : "rowcount " + std::to_string(result.rowsAffected)};
        if (expectationOf(block).front().starts_with("columns ")) {
            std::string columns = "columns ";
            for (std::size_t index = 0; index < result.rows->fieldCount(); ++index) {
                const std::string name = columnName(result.rows->fieldName(index));
                columns += (index == 0 ? "" : " | ") + (name.empty() ? "-" : name) + " " +
                           nameOf(result.rows->fieldType(index));
            }
            lines.push_back(columns);
        }
        const std::size_t head = lines.size();
        for (; !result.rows->atEnd(); result.rows->moveNext())
            lines.push_back(writtenRow(*result.rows));
        if (expectationOf(block).front() == "ok") return {"ok"};
        if (lines.size() == head) lines.emplace_back("no rows");
        return lines;
    }

    void expectError(const StatementBlock& block, const base::DatabaseError& error) {
        std::istringstream words(expectationOf(block).front());
        std::string word;
        std::string category;
        words >> word >> category;
        const std::string found = "error " + embedded::nameOf(error.category()) + " at " +
                                  std::to_string(static_cast<std::int64_t>(error.position())) + ": " +
                                  error.what();
        ASSERT_EQ(word, "error") << found;
        EXPECT_EQ(embedded::nameOf(error.category()), category) << found;
        EXPECT_EQ(error.statement(), block.statement);
        while (words >> word) {
            if (word == "at") {
                std::size_t position = 0;
                words >> position;
                EXPECT_EQ(error.position(),
                          adapter.tellsPositions ? position : base::DatabaseError::noPosition)
                    << found;
            } else if (word == "containing") {
                std::string part;
                std::getline(words >> std::ws, part);
                // Servers say it in words of their own.
                EXPECT_TRUE(!isEmbedded() || lowered(error.what()).find(lowered(part)) != std::string::npos)
                    << found;
            } else {
                ADD_FAILURE() << "unknown word " << word;
            }
        }
    }

    void check(const StatementBlock& block) {
        std::vector<std::string> expected = expectationOf(block);
        std::vector<std::string> found;
        try {
            found = run(block);
        } catch (const base::DatabaseError& error) {
            return expectError(block, error);
        }
        const auto order = std::find(expected.begin(), expected.end(), "in any order");
        if (order != expected.end()) {
            const auto head = order - expected.begin();
            expected.erase(order);
            std::sort(expected.begin() + head, expected.end());
            if (std::cmp_less(head, found.size())) std::sort(found.begin() + head, found.end());
        }
        for (std::string& line : expected)
            while (!line.empty() && line.back() == ' ')
                line.pop_back();
        EXPECT_EQ(found, expected);
    }

    std::unique_ptr<base::Connection> connection_ = connect();
};

TEST_P(StatementFiles, AnswerAsWritten) {
    const StatementFile file = StatementFile::read(GetParam());
    if (!file.isShared && !speaksTsql()) GTEST_SKIP() << "T-SQL alone";
    load(file.setup);
    for (StatementBlock block : file.blocks) {
        if (!concernsUs(block)) continue;
        if (adapter.clockRuns)
            block.statement =
                base::replaceAll(block.statement, "GETDATE()", "CAST('2025-06-05T14:30:00' AS datetime)");
        SCOPED_TRACE(GetParam().filename().string() + ":" + std::to_string(block.line) + " " + block.name +
                     "\n" + block.statement);
        // The server stops counting rows with NOCOUNT, which a block before may have set.
        if (speaksTsql()) connection_->execute("SET NOCOUNT OFF");
        check(block);
    }
}

std::string fileName(const testing::TestParamInfo<fs::path>& file) {
    return file.param.stem().string();
}

INSTANTIATE_TEST_SUITE_P(Files, StatementFiles, testing::ValuesIn(statementFiles()), fileName);

} // namespace
} // namespace tellurix::embedded
