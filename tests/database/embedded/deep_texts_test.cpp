// Texts that make a deep tree or a long chain run, or are refused with their place, on a stack of the
// size that a session has. None may end the process.

#include "tests/database/embedded/EmbeddedTest.h"

#include <functional>
#include <pthread.h>

namespace tellurix::embedded {
namespace {

constexpr std::size_t sessionStack = 1024UL * 1024;

/// Runs on a thread with a session's stack.
void onSessionStack(const std::function<void()>& work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, sessionStack);
    pthread_t thread{};
    const auto body = [](void* given) -> void* {
        (*static_cast<const std::function<void()>*>(given))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, body, const_cast<std::function<void()>*>(&work)), 0);
    pthread_attr_destroy(&attributes);
    pthread_join(thread, nullptr);
}

std::string times(int count, const std::string& part) {
    std::string text;
    for (int each = 0; each < count; ++each)
        text += part;
    return text;
}

struct Shape {
    const char* rule;
    const char* before;
    const char* opening; ///< repeated
    const char* core;
    const char* closing; ///< repeated
    const char* after;
    int works; ///< up to so many repetitions the text runs
};

constexpr int always = 10'000;

const Shape shapes[] = {
    {"sums", "SELECT N", "+1", "", "", " FROM T", 20},
    {"differences of decimals", "SELECT 1.5", "-0.5", "", "", "", 20},
    {"products", "SELECT N", "*1", "", "", " FROM T", 20},
    {"quotients of floats", "SELECT 1e0", "/1e0", "", "", "", 20},
    {"joined texts", "SELECT A", "+'x'", "", "", " FROM T", always},
    {"joined texts in GROUP BY", "SELECT COUNT(*) FROM T GROUP BY A", "+A", "", "", "", always},
    {"AND", "SELECT 1 FROM T WHERE N=1", " AND N=1", "", "", "", always},
    {"OR", "SELECT 1 FROM T WHERE N=1", " OR N=2", "", "", "", always},
    {"AND and OR in turn", "SELECT 1 FROM T WHERE N=1", " AND N=1 OR N=2", "", "", "", always},
    {"UNION", "SELECT 1", " UNION SELECT 2", "", "", "", 249},
    {"UNION ALL over a table", "SELECT N FROM T", " UNION ALL SELECT N FROM T WHERE N>0", "", "", "", 249},
    {"IN lists", "SELECT 1 FROM T WHERE N IN (1", ",2", "", "", ")", always},
    {"IN lists of two kinds", "SELECT 1 FROM T WHERE A IN ('a'", ",2,'x'", "", "", ")", 0},
    {"arguments", "SELECT COALESCE(N", ",N", "", "", ") FROM T", 99},
    {"WHEN", "SELECT CASE N", " WHEN 1 THEN 2", "", "", " END FROM T", always},
    {"rows of values", "INSERT INTO W VALUES (1)", ",(1)", "", "", "", always},
    {"statements", "SET NOCOUNT ON", " SET DATEFIRST 1", "", "", "", always},
    {"parentheses", "SELECT ", "(", "1", ")", "", 90},
    {"parentheses around conditions", "SELECT 1 WHERE ", "(", "1=1", ")", "", 90},
    {"signs before a value", "SELECT ", "- ", "N", "", " FROM T", 15},
    {"plus signs before a value", "SELECT ", "+ ", "N", "", " FROM T", 90},
    {"NOT", "SELECT 1 FROM T WHERE ", "NOT ", "N=1", "", "", 30},
    {"CASE in CASE", "SELECT ", "CASE WHEN N=1 THEN ", "1", " END", " FROM T", 15},
    {"CASE of CASE", "SELECT ", "CASE ", "N", " WHEN 1 THEN 1 WHEN 2 THEN 2 END", " FROM T", 10},
    {"functions", "SELECT ", "ISNULL(", "N", ",0)", " FROM T", 20},
    {"NULLIF", "SELECT ", "NULLIF(", "N", ",0)", " FROM T", 10},
    {"CAST", "SELECT ", "CAST(", "N", " AS nvarchar(9))", " FROM T", 20},
    {"subqueries", "SELECT ", "(SELECT ", "N", " FROM T)", " FROM T", 8},
    {"IN subqueries", "SELECT N FROM T WHERE ", "N IN (SELECT N FROM T WHERE ", "1=1", ")", "", 8},
    {"EXISTS", "SELECT N FROM T WHERE ", "EXISTS (SELECT 1 FROM T WHERE ", "1=1", ")", "", 8},
    {"derived tables", "SELECT N FROM ", "(SELECT N FROM ", "T", ") A", "", 8},
    {"blocks", "", "BEGIN ", "SELECT 1", " END", "", 90},
    {"IF", "", "IF 1=1 ", "SELECT 1", "", "", 90},
    {"ELSE IF", "", "IF 1=2 SELECT 2 ELSE ", "SELECT 1", "", "", 90},
    {"comments", "SELECT 1 ", "/* ", "", "*/", "", always},
    {"comments in a row", "SELECT 1 ", "/**/--\n", "", "", "", always},
    {"joins", "SELECT T.N FROM T", ",T A", "", "", "", 1},
};

TEST_F(EmbeddedTest, DeepAndLongTextsAreRunOrRefusedOnASessionsStack) {
    const auto connection = connect();
    connection->execute("CREATE TABLE T (N int NULL, A nvarchar(max) NULL) CREATE TABLE W (N int NULL)");
    connection->execute("INSERT INTO T VALUES (1,'a')");
    onSessionStack([&] {
        for (const Shape& shape : shapes) {
            for (const int count :
                 {1, 8, 10, 15, 20, 25, 30, 40, 60, 80, 90, 99, 100, 150, 249, 1'000, always}) {
                SCOPED_TRACE(std::string(shape.rule) + ", " + std::to_string(count));
                const std::string text = shape.before + times(count, shape.opening) + shape.core +
                                         times(count, shape.closing) + shape.after;
                try {
                    const auto result = connection->execute(text);
                    if (result.rows) static_cast<void>(result.rows->atEnd());
                } catch (const base::DatabaseError& error) {
                    if (shape.works == 0) continue;
                    EXPECT_GT(count, shape.works) << error.what();
                    EXPECT_EQ(nameOf(error.category()), "syntax") << error.what();
                    EXPECT_LT(error.position(), text.size()) << error.what();
                }
            }
        }
    });
}

} // namespace
} // namespace tellurix::embedded
