// What one connection sees of its own open rows and of the other connections on the file.

#include "database/embedded/script.h"
#include "database/embedded/sqlite/SqliteConnection.h"
#include "tests/database/embedded/EmbeddedTest.h"

#include <chrono>
#include <thread>

namespace tellurix::embedded {
namespace {

class Connections : public EmbeddedTest {
protected:
    Connections() {
        first_->execute(
            "CREATE TABLE T (ID int IDENTITY(1,1) PRIMARY KEY, N int NULL, PREIS decimal(10,2) NULL)");
        first_->execute("INSERT INTO T (N,PREIS) VALUES (1,1.5),(2,2.5),(3,3.5)");
    }

    std::unique_ptr<base::Connection> first_ = connect();
    std::unique_ptr<base::Connection> second_ = connect();
};

TEST_F(Connections, OpenRowsShowTheMomentOfTheirQueryThoughTheConnectionWrites) {
    const auto unread = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    const auto halfRead = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    halfRead->moveNext();
    first_->execute("UPDATE T SET N = N * 10");
    first_->execute("DELETE FROM T WHERE ID = 3");
    first_->execute("INSERT INTO T (N) VALUES (4)");

    EXPECT_EQ(unread->integer("N"), 1);
    std::string seen;
    for (; !halfRead->atEnd(); halfRead->moveNext())
        seen += writtenRow(*halfRead) + " ";
    EXPECT_EQ(seen, "2 3 ");
    EXPECT_EQ(answer(*first_, "SELECT N FROM T ORDER BY ID"), "10\n20\n4");
}

TEST_F(Connections, TheSameTextCanBeOpenTwice) {
    const auto outer = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    const auto inner = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    outer->moveNext();
    EXPECT_EQ(inner->integer("N"), 1);
    EXPECT_EQ(outer->integer("N"), 2);
}

TEST_F(Connections, RowsCanOutliveTheirConnection) {
    const auto rows = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    rows->moveNext();
    first_.reset();
    EXPECT_EQ(rows->integer("N"), 2);
}

TEST_F(Connections, NoRowIsFetchedBeforeItIsAskedFor) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 1 / N AS Q FROM T ORDER BY ID DESC").rows;
    EXPECT_EQ(rows->fieldName(0), "Q");
    EXPECT_EQ(rows->fieldType(0), base::FieldType::integer);
    // Another connection's change is still seen, so nothing has been read.
    second_->execute("UPDATE T SET N = 1 WHERE N = 0");
    EXPECT_EQ(rows->integer("Q"), 1);
}

TEST_F(Connections, AnErrorOfARowComesWhenTheRowIsReached) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 6 / N FROM T ORDER BY ID").rows;
    EXPECT_EQ(written(rows->field(0)), "6");
    EXPECT_EQ(failureOf([&] {
                  for (;; rows->moveNext())
                      static_cast<void>(rows->field(0));
              }),
              "conversion: Division by zero");
}

TEST_F(Connections, AnErrorOfOpenRowsWaitsForTheirReaderNotForTheWrite) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 6 / N FROM T ORDER BY ID").rows;
    first_->execute("UPDATE T SET PREIS = 1");
    EXPECT_EQ(failureOf([&] { rows->atEnd(); }), "conversion: Division by zero");
}

TEST_F(Connections, AReaderNeitherWaitsNorSeesHalfAWrite) {
    const auto rows = first_->execute("SELECT SUM(N) AS S FROM T").rows;
    EXPECT_EQ(rows->integer("S"), 6);
    second_->execute("UPDATE T SET N = 100");
    EXPECT_EQ(rows->integer("S"), 6);
    EXPECT_EQ(answer(*first_, "SELECT SUM(N) FROM T"), "300");
}

TEST_F(Connections, AWriteWaitsForAnotherSessionAndThenGivesUp) {
    SqliteConnection other(file(), false, std::chrono::seconds{1}, clock());
    {
        const SqliteTransaction held(other);
        EXPECT_EQ(
            failureOf([&] { second_->execute("UPDATE T SET N = 7"); }),
            "locked: The database is held by another session; gave up after 300 ms. Please try again later");
        EXPECT_EQ(answer(*second_, "SELECT N FROM T"), "1\n2\n3");
    }
    EXPECT_EQ(failureOf([&] { second_->execute("UPDATE T SET N = 7"); }), "none");
}

TEST_F(Connections, AWriteSucceedsWhenTheOtherSessionEndsInTime) {
    SqliteConnection other(file(), false, std::chrono::seconds{1}, clock());
    std::string failure;
    std::thread waiting;
    {
        const SqliteTransaction held(other);
        waiting =
            std::thread([&] { failure = failureOf([&] { connect()->execute("UPDATE T SET N = 7"); }); });
        std::this_thread::sleep_for(std::chrono::milliseconds{50});
    }
    waiting.join();
    EXPECT_EQ(failure, "none");
}

TEST_F(Connections, ManyWritersLoseNothing) {
    constexpr int writers = 4;
    constexpr int rounds = 50;
    std::vector<std::thread> threads;
    for (int index = 0; index < writers; ++index)
        threads.emplace_back([&] {
            const auto connection = connect();
            for (int round = 0; round < rounds; ++round) {
                connection->execute("UPDATE T SET N = N + 1 WHERE ID = 1");
                connection->execute("INSERT INTO T (N) VALUES (1)");
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(answer(*first_, "SELECT N, (SELECT COUNT(*) FROM T) FROM T WHERE ID = 1"), "201 | 203");
}

TEST_F(Connections, AColumnThatAnotherConnectionMadeAnewIsReadWithItsNewType) {
    const std::string select = "SELECT PREIS FROM T";
    const std::string insert = "INSERT INTO T (PREIS) VALUES ('1.2345')";
    first_->execute(insert);
    EXPECT_EQ(answer(*first_, select), "1.50\n2.50\n3.50\n1.23");
    second_->execute("DROP TABLE T CREATE TABLE T (PREIS decimal(10,4) NULL)");
    first_->execute(insert);
    EXPECT_EQ(answer(*first_, select), "1.2345");
    second_->execute("DROP TABLE T");
    EXPECT_EQ(failureOf([&] { answer(*first_, select); }), "unknownName: There is no table T");
    second_->execute("CREATE TABLE T (PREIS nvarchar(6))");
    first_->execute(insert);
    EXPECT_EQ(answer(*first_, select), "1.2345");
}

TEST_F(Connections, AWriteIntoATableThatAnotherConnectionMadeAnewUsesItsNewType) {
    const std::string update = "UPDATE T SET PREIS = '1.2345'";
    first_->execute(update);
    second_->execute("DROP TABLE T CREATE TABLE T (PREIS decimal(10,4) NULL) INSERT INTO T VALUES (0)");
    first_->execute(update);
    EXPECT_EQ(answer(*second_, "SELECT PREIS FROM T"), "1.2345");
}

TEST_F(Connections, RowsWhoseTableChangedBeforeTheFirstFetchAreRefused) {
    const auto rows = first_->execute("SELECT PREIS FROM T").rows;
    second_->execute("DROP TABLE T CREATE TABLE T (PREIS int) INSERT INTO T VALUES (1)");
    EXPECT_EQ(failureOf([&] { rows->atEnd(); }),
              "other: The table was changed by another session before its rows were read");
}

TEST_F(Connections, ATableVariableDoesNotDisturbOtherStatements) {
    const std::string batch =
        "DECLARE @t TABLE (N int) INSERT INTO @t SELECT N FROM T SELECT SUM(N) AS S FROM @t";
    const auto before = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    before->moveNext();
    const auto rows = first_->execute(batch).rows;
    first_->execute("UPDATE T SET N = 10");
    EXPECT_EQ(answer(*first_, batch), "30");
    EXPECT_EQ(rows->integer("S"), 6);
    EXPECT_EQ(before->integer("N"), 2);
    // More texts than are kept, so that the first one is thrown away and comes again.
    for (int index = 0; index < 300; ++index)
        EXPECT_EQ(answer(*first_,
                         "DECLARE @t TABLE (N int) SELECT COUNT(*) + " + std::to_string(index) + " FROM @t"),
                  std::to_string(index));
    EXPECT_EQ(answer(*first_, batch), "30");
}

TEST_F(Connections, ABatchSentAgainAnswersAsIfItComputedAnew) {
    const std::string loop = "DECLARE @t TABLE (N int, D datetime) DECLARE @i int = 0 WHILE @i < 20 BEGIN "
                             "INSERT INTO @t VALUES (@i, '05.06.2025') SET @i = @i + 1 END ";
    const std::string lookUp = loop + "SELECT (SELECT COUNT(*) FROM @t A WHERE A.N = T.N), "
                                      "MONTH((SELECT MAX(D) FROM @t)), @i FROM T WHERE ID = 1";
    const std::string writesOn = loop + "INSERT INTO @t VALUES (7,NULL) SELECT COUNT(*) FROM @t";
    const std::string reads =
        "DECLARE @s int = 0, @i int = 0 WHILE @i < 3 BEGIN SET @s = @s + (SELECT N FROM T "
        "WHERE ID = 1) SET @i = @i + 1 END SELECT @s";
    EXPECT_EQ(answer(*first_, lookUp), "1 | 6 | 20");
    EXPECT_EQ(answer(*first_, lookUp), "1 | 6 | 20");
    EXPECT_EQ(answer(*first_, writesOn), "21");
    EXPECT_EQ(answer(*first_, writesOn), "21");
    EXPECT_EQ(answer(*first_, reads), "3");
    second_->execute("UPDATE T SET N = 99 WHERE ID = 1");
    EXPECT_EQ(answer(*first_, reads), "297");
    EXPECT_EQ(answer(*first_, lookUp), "0 | 6 | 20");
    first_->execute("SET DATEFORMAT mdy");
    EXPECT_EQ(answer(*first_, lookUp), "0 | 5 | 20");
    EXPECT_EQ(answer(*first_, lookUp), "0 | 5 | 20");
    // While the rows of one run are being read, the same text runs again.
    const auto rows = first_->execute(loop + "SELECT N FROM @t ORDER BY N").rows;
    rows->moveNext();
    EXPECT_EQ(first_->execute(loop + "SELECT N FROM @t ORDER BY N").rows->integer("N"), 0);
    EXPECT_EQ(rows->integer("N"), 1);
}

TEST_F(Connections, BatchesThatBeginAlikeAnswerAsIfEachComputedForItself) {
    const std::string loop =
        "DECLARE @t TABLE (N int, M int) DECLARE @i int = 0 WHILE @i < 20 BEGIN "
        "INSERT INTO @t VALUES (@i, DATEPART(weekday, '01.06.2025')) SET @i = @i + 1 END ";
    const std::string ofNumber = loop + "SELECT SUM(M), @i FROM @t WHERE N = 3";
    const std::string ofDay = loop + "SELECT COUNT(*), SUM(N) FROM @t WHERE M = 7";
    const std::string alike = loop + "SELECT (SELECT COUNT(*) FROM @t A WHERE A.N = T.N) FROM T WHERE ID = ";
    EXPECT_EQ(answer(*first_, ofNumber), "7 | 20");
    EXPECT_EQ(answer(*first_, ofDay), "20 | 190");
    EXPECT_EQ(answer(*first_, alike + "1"), "1");
    // The rows of one of them are still being read while the others begin anew.
    const auto rows = first_->execute(loop + "SELECT N FROM @t ORDER BY N").rows;
    rows->moveNext();
    first_->execute("SET DATEFIRST 7");
    EXPECT_EQ(answer(*first_, ofDay), "0 | NULL");
    EXPECT_EQ(answer(*first_, ofNumber), "1 | 20");
    EXPECT_EQ(rows->integer("N"), 1);
    first_->execute("SET DATEFIRST 1");
    EXPECT_EQ(answer(*first_, ofNumber), "7 | 20");
    EXPECT_EQ(answer(*first_, ofDay), "20 | 190");
    const auto counted = [&](const std::string& text) { return first_->execute(text).rowsAffected; };
    EXPECT_EQ(counted(loop), 1);
    EXPECT_EQ(counted("SET NOCOUNT ON " + loop), -1);
    EXPECT_EQ(counted(loop), -1) << "the option stays in force";
    first_->execute("SET NOCOUNT OFF");
    EXPECT_EQ(counted("SET NOCOUNT ON " + loop), -1);
    first_->execute("SET NOCOUNT OFF");
    EXPECT_EQ(counted(loop), 1);
    // More texts than are kept, so that nobody has the computed rows any more.
    for (int each = 0; each < 300; ++each)
        EXPECT_EQ(
            answer(*first_, alike + std::to_string(each % 3 + 1) + " AND N < " + std::to_string(9 + each)),
            "1");
    EXPECT_EQ(answer(*first_, ofNumber), "7 | 20");
}

TEST_F(Connections, ARowThatIsGoneCannotBeEdited) {
    const auto rows = first_->openUpdatable("SELECT * FROM T WHERE ID = 2");
    second_->execute("DELETE FROM T WHERE ID = 2");
    rows->setField("N", std::int64_t{5});
    EXPECT_EQ(failureOf([&] { rows->update(); }),
              "other: The row of T that was being edited is no longer there");
}

TEST_F(Connections, EditedRowsTakeEveryKindOfValueAndShowWhatTheColumnMadeOfIt) {
    first_->execute("CREATE TABLE E (S nvarchar(5), J bit, N smallint, P decimal(6,1), F float, D datetime)");
    first_->execute("INSERT INTO E VALUES (NULL,NULL,NULL,NULL,NULL,NULL),(NULL,NULL,1,NULL,NULL,NULL)");
    const auto rows = first_->openUpdatable("SELECT * FROM E ORDER BY N");
    rows->setField("s", std::string("Äpfel"));
    rows->setField("j", true);
    rows->setField("n", std::string("12"));
    rows->setField("p", base::Decimal(255, 2));
    rows->setField("f", 0.5);
    rows->setField("d", std::string("05.06.2025"));
    rows->update();
    EXPECT_EQ(writtenRow(*rows), "Äpfel | true | 12 | 2.6 | 0.5 | 2025-06-05");
    EXPECT_EQ(answer(*second_, "SELECT * FROM E WHERE N = 12"), "Äpfel | true | 12 | 2.6 | 0.5 | 2025-06-05");
}

TEST_F(Connections, WhatWasSetAndNotUpdatedIsForgottenWithTheRow) {
    const auto rows = first_->openUpdatable("SELECT * FROM T ORDER BY ID");
    rows->setField("N", std::int64_t{99});
    rows->moveNext();
    EXPECT_EQ(rows->integer("N"), 2);
    rows->setField("PREIS", base::Decimal(5, 0));
    rows->update();
    rows->setField("N", std::int64_t{98});
    rows->remove();
    rows->moveNext();
    rows->setField("PREIS", base::Decimal(6, 0));
    rows->update();
    EXPECT_EQ(answer(*second_, "SELECT * FROM T"), "1 | 1 | 1.50\n3 | 3 | 6.00");
}

TEST_F(Connections, ATextIsReadAndEditedInTurnsWhateverHappensToItsTable) {
    const std::string text = "SELECT * FROM T WHERE ID = 1";
    const auto edit = [&](const base::Value& price) {
        const auto rows = first_->openUpdatable(text);
        rows->setField("PREIS", price);
        rows->update();
        return writtenRow(*rows);
    };
    EXPECT_EQ(answer(*first_, text), "1 | 1 | 1.50");
    EXPECT_EQ(edit(base::Decimal(25, 1)), "1 | 1 | 2.50");
    EXPECT_EQ(answer(*first_, text), "1 | 1 | 2.50");
    EXPECT_EQ(edit(base::Decimal(26, 1)), "1 | 1 | 2.60");
    EXPECT_EQ(edit({}), "1 | 1 | NULL");

    second_->execute("DROP TABLE T");
    second_->execute("CREATE TABLE T (ID int PRIMARY KEY, PREIS decimal(10,3) NULL)");
    second_->execute("INSERT INTO T VALUES (1,NULL)");
    EXPECT_EQ(edit(base::Decimal(25, 1)), "1 | 2.500");
    EXPECT_EQ(answer(*first_, text), "1 | 2.500");
}

TEST_F(Connections, ARowDeletedInPlaceLeavesTheOthers) {
    const auto rows = first_->openUpdatable("SELECT ID FROM T WHERE N > 1 ORDER BY ID");
    rows->remove();
    EXPECT_EQ(failureOf([&] { rows->field("ID"); }), "other: There is no current row");
    rows->moveNext();
    EXPECT_EQ(rows->integer("ID"), 3);
    EXPECT_EQ(answer(*second_, "SELECT ID FROM T"), "1\n3");
}

TEST_F(Connections, OptionsBelongToTheirConnection) {
    first_->execute("SET DATEFORMAT mdy");
    EXPECT_EQ(answer(*first_, "SELECT MONTH('05.06.2025')"), "5");
    EXPECT_EQ(answer(*second_, "SELECT MONTH('05.06.2025')"), "6");
}

TEST_F(EmbeddedTest, ScriptsAreCutAtLinesThatHoldOnlyGo) {
    const std::string text = "\xEF\xBB\xBF"
                             "CREATE TABLE T (N int)\r\nGO\r\nINSERT INTO T VALUES (1)\n  go  \n\nGO\n"
                             "INSERT INTO T SELECT N + 1 FROM T -- GO\n";
    EXPECT_EQ(splitBatches(text).size(), 3U);
    const auto connection = connect();
    runScript(*connection, text);
    EXPECT_EQ(answer(*connection, "SELECT N FROM T ORDER BY N"), "1\n2");
}

} // namespace
} // namespace tellurix::embedded
