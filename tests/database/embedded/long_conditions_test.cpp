// Chains of very many conditions: they run, and asking one row all of them, which is remembered for its
// values, answers like the collected keys that the statement speaks of.

#include "tests/database/embedded/EmbeddedTest.h"

#include <functional>

namespace tellurix::embedded {
namespace {

constexpr int links = 2'000;

/// T holds every combination of a few values, NULL among them.
class LongConditions : public EmbeddedTest {
protected:
    LongConditions() {
        connection_->execute(
            "CREATE TABLE V (A nvarchar(10) NULL)\n"
            "CREATE TABLE M (MOST int NOT NULL)\n"
            "CREATE TABLE T (ID int IDENTITY(1,1) PRIMARY KEY, A nvarchar(10) NULL, N int NULL)");
        connection_->execute("INSERT INTO V VALUES ('FI'),('fi '),('KI'),('Lä'),(NULL)");
        connection_->execute("INSERT INTO M VALUES (3)");
        connection_->execute(
            "INSERT INTO T (A,N) SELECT V.A, B.N FROM V INNER JOIN (SELECT 1 AS N UNION ALL "
            "SELECT 2 UNION ALL SELECT 3 UNION ALL SELECT 1 UNION ALL SELECT NULL) B ON 1=1");
    }

    std::unique_ptr<base::Connection> connection_ = connect();
};

using Link = std::function<std::string(int)>;

std::string chainOf(const char* word, int count, const Link& link) {
    std::string text = link(0);
    for (int i = 1; i < count; ++i)
        text += word + link(i);
    return text;
}

/// Something of T that depends on the link's number, with values that are there and others.
std::string numbered(int i) {
    return "(K.N = " + std::to_string(i % 7 + 3) + " AND K.A IN ('" + (i % 3 == 0 ? "FI" : "X") + "'))";
}

TEST_F(LongConditions, AnswerLikeTheKeysTheySpeakOf) {
    struct Case {
        const char* rule;
        std::string from;
        const char* word;
        int count;
        std::string before; ///< of the subquery, up to FROM
        Link where;
    };
    const Link perValue = [](int i) {
        return "K.A = '" + std::string(i % 2 == 0 ? "fi" : "LÄ") + "' AND K.N " +
               (i % 3 == 0 ? "<> " : "= ") + std::to_string(i % 5 + 2);
    };
    const Case cases[] = {
        {"NULL is not taken, and so stays", "T X", " AND ", links, "X.ID NOT IN (SELECT K.ID", numbered},
        {"several columns in turn", "T X", " AND ", 100, "X.ID NOT IN (SELECT K.ID",
         [&](int i) { return i % 2 == 0   ? "K.A = 'ki' OR K.N > 3"
                             : i % 3 == 0 ? "K.N = 2"
                                          : perValue(i); }},
        {"OR", "T X", " OR ", links, "X.ID IN (SELECT K.ID", perValue},
        {"OR with what is not taken", "T X", " OR ", 20, "X.ID NOT IN (SELECT K.ID",
         [](int) { return "K.A <> 'KI' OR K.N = 1"; }},
        {"each of two rows for itself", "T Y INNER JOIN T X ON Y.N = X.N + 1", " AND ", 100,
         "Y.ID IN (SELECT ID FROM T WHERE N > 1 OR A IS NULL) AND X.ID NOT IN (SELECT K.ID", perValue},
        {"the other row is asked too", "T Y INNER JOIN T X ON Y.N = X.N + 1", " AND ", 20,
         "X.ID NOT IN (SELECT K.ID", [](int i) { return "Y.A = 'KI' AND K.N = " + std::to_string(i); }},
        {"the row of a LEFT JOIN", "T Y LEFT JOIN T X ON X.N = Y.N + 1 AND X.A = Y.A", " AND ", 20,
         "X.ID NOT IN (SELECT K.ID", perValue},
        {"another table is asked", "T X", " AND ", 20, "X.ID NOT IN (SELECT K.ID",
         [](int) {
             return "K.N < (SELECT MAX(MOST) FROM M) AND K.A IN (SELECT V.A FROM V WHERE V.A < 'G')";
         }},
        {"NULL among the keys", "T X", " AND ", links, "X.N NOT IN (SELECT K.N", numbered},
    };
    for (const Case& each : cases) {
        const auto statement = [&](const std::string& keys) {
            return "SELECT COUNT(*), SUM(X.ID) FROM " + each.from + " WHERE " +
                   chainOf(each.word, each.count, [&](int i) {
                       return each.before + " FROM " + keys + " K WHERE " + each.where(i) + ")";
                   });
        };
        const std::string expected = answer(*connection_, statement("(SELECT ID, A, N FROM T)"));
        EXPECT_EQ(answer(*connection_, statement("T")), expected) << each.rule;
        EXPECT_NE(expected, "0 | NULL") << each.rule;
    }
}

TEST_F(LongConditions, TheFirstOfManyThatHoldsIsChosen) {
    const auto statement = [](const std::string& keys, int count) {
        std::string choice;
        for (int i = 0; i < count; ++i)
            choice += " WHEN X.ID IN (SELECT K.ID FROM " + keys + " K WHERE " + numbered(i) + ") THEN " +
                      std::to_string(i);
        return "SELECT SUM(C.FIRST),COUNT(*),MAX(C.FIRST) FROM (SELECT (CASE" + choice +
               " ELSE 7777 END) AS FIRST FROM T X) C";
    };
    for (const int count : {3, 500}) {
        const std::string expected = answer(*connection_, statement("(SELECT ID, A, N FROM T)", count));
        EXPECT_EQ(answer(*connection_, statement("T", count)), expected) << count;
        EXPECT_NE(expected.find("7777"), std::string::npos) << "some are taken by none";
    }
}

TEST_F(LongConditions, EveryRunAsksAnew) {
    const std::string text =
        "SELECT COUNT(*) FROM T WHERE " + chainOf(" AND ", 20, [](int) {
            return "T.ID NOT IN (SELECT T.ID FROM T WHERE T.N < (SELECT MAX(MOST) FROM M))";
        });
    EXPECT_EQ(answer(*connection_, text), "10");
    connection_->execute("UPDATE M SET MOST = 1");
    EXPECT_EQ(answer(*connection_, text), "25");
    EXPECT_EQ(answer(*connection_,
                     "Declare @i int = 0\nDeclare @n int = 0\nWHILE @i < 3\nbegin\nSET @i = @i + 1\n"
                     "SET @n = @n * 100 + (SELECT COUNT(*) FROM T WHERE " +
                         chainOf(" AND ", 20,
                                 [](int) { return "T.ID NOT IN (SELECT T.ID FROM T WHERE T.N > @i)"; }) +
                         ")\nend\nSELECT @n"),
              "152025");
}

TEST_F(LongConditions, OfAnyKindRun) {
    const Link plain = [](int i) { return "A <> '" + std::to_string(i) + "'"; };
    const Link mixed = [](int i) {
        return i % 2 == 0 ? std::to_string(i + 3) : "'" + std::to_string(i + 3) + "'";
    };
    for (const std::string& where : {chainOf(" AND ", links, plain), chainOf(" OR ", links, plain),
                                     "N <> 3 AND N NOT IN (0.5," + chainOf(",", links, mixed) +
                                         ") AND A IS NOT NULL OR N = 3 AND A > 'A'"})
        EXPECT_EQ(answer(*connection_, "SELECT COUNT(*) FROM T WHERE " + where),
                  where.front() == 'A' ? "20" : "16");
}

} // namespace
} // namespace tellurix::embedded
