// The driver for T-SQL servers, on the embedded database behind their protocol: what the statement files do
// not reach.

#include "database/odbc/Database.h"
#include "tests/database/embedded/EmbeddedTest.h"
#include "tests/database/odbc/TcpProxy.h"
#include "tests/database/tds/TdsServer.h"

#include <chrono>
#include <thread>

namespace tellurix::odbc {
namespace {

using embedded::answer;
using embedded::failureOf;
using embedded::writtenRow;

class TdsDriver : public embedded::EmbeddedTest {
protected:
    TdsDriver() {
        first_->execute(
            "CREATE TABLE T (ID int IDENTITY(1,1) PRIMARY KEY, N int NULL, PREIS decimal(10,2) NULL, NAME nvarchar(20) NULL)");
        first_->execute("INSERT INTO T (N,PREIS,NAME) VALUES (1,1.5,'eins'),(2,2.5,NULL),(3,3.5,'')");
    }

    std::unique_ptr<base::Connection> first_ = connect();
    std::unique_ptr<base::Connection> second_ = connect();
};

TEST_F(TdsDriver, OpenRowsAreInMemoryBeforeTheNextStatement) {
    first_->execute("INSERT INTO T (N) SELECT A.N + B.N FROM T A, T B");
    const auto rows = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    rows->moveNext();
    const auto unread = first_->execute("SELECT COUNT(*) FROM T").rows;
    first_->execute("DELETE FROM T WHERE N > 1");
    EXPECT_EQ(unread->integer(0), 12);
    int count = 1;
    for (; !rows->atEnd(); rows->moveNext())
        ++count;
    EXPECT_EQ(count, 12);
}

TEST_F(TdsDriver, ColumnsCostNoRow) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 6 / N AS Q, NAME FROM T ORDER BY ID DESC").rows;
    EXPECT_EQ(rows->fieldName(0), "Q");
    EXPECT_EQ(rows->fieldType(0), base::FieldType::integer);
    EXPECT_EQ(rows->textWidth(1), 20);
    second_->execute("UPDATE T SET N = 6 WHERE N = 0");
    EXPECT_EQ(rows->integer("Q"), 1);
}

TEST_F(TdsDriver, ErrorsCarryTheServersNumberAndALateOneIsTold) {
    try {
        answer(*first_, "SELECT NIX FROM T");
        ADD_FAILURE();
    } catch (const base::DatabaseError& error) {
        EXPECT_EQ(error.nativeCode(), 208);
        EXPECT_EQ(error.sqlState(), "42S02");
        EXPECT_EQ(error.statement(), "SELECT NIX FROM T");
    }
    EXPECT_EQ(failureOf([&] { first_->execute("UPDATE T SET N = 1 SELECT 1 SELECT 1/0"); }).substr(0, 10),
              "conversion");
    EXPECT_EQ(answer(*first_, "SELECT COUNT(*) FROM T"), "3");
}

TEST_F(TdsDriver, RowsAreEditedByKeyAlsoWhereTheSessionDoesNotCount) {
    for (const char* counting : {"SET NOCOUNT OFF", "SET NOCOUNT ON"}) {
        first_->execute(counting);
        second_->execute("UPDATE T SET NAME = 'x'");
        const auto rows = first_->openUpdatable("SELECT NAME, PREIS FROM T WHERE ID < 3 ORDER BY ID");
        rows->setField("NAME", std::string("O'Hära €😀"));
        rows->setField("PREIS", std::string("2.675"));
        rows->update();
        EXPECT_EQ(writtenRow(*rows), "O'Hära €😀 | 2.68");
        second_->execute("UPDATE T SET NAME = 'X' WHERE ID = 1");
        rows->setField("NAME", std::string("y"));
        EXPECT_EQ(failureOf([&] { rows->update(); }),
                  "other: The row of T that was being edited was changed by somebody else: NAME");
        rows->moveNext();
        rows->setField("NAME", {});
        rows->update();
        EXPECT_EQ(answer(*second_, "SELECT NAME FROM T ORDER BY ID"), "X\nNULL\nx");
    }
    const auto rows = first_->openUpdatable("SELECT NAME FROM T WHERE ID = 3");
    second_->execute("DELETE FROM T WHERE ID = 3");
    rows->setField("NAME", std::string("y"));
    EXPECT_EQ(failureOf([&] { rows->update(); }),
              "other: The row of T that was being edited is no longer there");
}

TEST_F(TdsDriver, ALostConnectionIsToldByAWriteAndMadeAnewByTheNextStatement) {
    const tests::TdsServer server{file(), clock(), {.create = true}};
    tests::TcpProxy proxy{server.port()};
    const auto connection =
        Database{Source::parse("SERVER=127.0.0.1;DATABASE=test;UID=test;PWD=geheim;PORT=" +
                               std::to_string(proxy.port()))}
            .connect();
    connection->execute("CREATE TABLE L (ID int IDENTITY(1,1) PRIMARY KEY, N int)");
    const auto lose = [&] {
        proxy.cut();
        std::this_thread::sleep_for(std::chrono::milliseconds{100});
    };
    lose();
    const std::string failure = failureOf([&] { connection->execute("INSERT INTO L (N) VALUES (1)"); });
    EXPECT_TRUE(failure.starts_with("connection: The connection to the database server was lost; whether"))
        << failure;
    connection->execute("INSERT INTO L (N) VALUES (2)");
    lose();
    EXPECT_EQ(answer(*connection, "SELECT N FROM L"), "2");
    const auto row = connection->openUpdatable("SELECT N FROM L");
    row->setField("N", std::int64_t{3});
    lose();
    // What is compared is read anew; then the row is written.
    row->update();
    EXPECT_EQ(answer(*connection, "SELECT N FROM L"), "3");
    // Rows that were still on their way are lost with it; the next query is not.
    for (int doubled = 0; doubled < 6; ++doubled)
        connection->execute("INSERT INTO L (N) SELECT N FROM L");
    const auto rows = connection->execute("SELECT A.N FROM L A, L B, L C").rows;
    EXPECT_FALSE(rows->atEnd());
    lose();
    EXPECT_EQ(answer(*connection, "SELECT COUNT(*) FROM L"), "64");
    const std::string half = failureOf([&] {
        while (!rows->atEnd())
            rows->moveNext();
    });
    EXPECT_TRUE(half.starts_with("connection: ")) << half;
    lose();
    EXPECT_TRUE(
        failureOf([&] { connection->execute("SET NOCOUNT ON SELECT 1"); }).starts_with("connection: "));
    EXPECT_EQ(answer(*connection, "SELECT CAST('31.12.2024' AS datetime)"), "2024-12-31");
}

TEST_F(TdsDriver, ANetworkThatSwallowsEverythingIsGivenUpAfterItsTime) {
    const tests::TdsServer server{file(), clock(), {.create = true}};
    tests::TcpProxy proxy{server.port()};
    const Database database{
        Source::parse("SERVER=127.0.0.1;UID=test;PWD=geheim;PORT=" + std::to_string(proxy.port())),
        {.loginTime = std::chrono::seconds{1}, .answerTime = std::chrono::seconds{1}}};
    const auto connection = database.connect();
    proxy.swallow();
    const std::string failure = failureOf([&] { connection->execute("CREATE TABLE S (N int)"); });
    EXPECT_TRUE(failure.starts_with("connection: The connection to the database server was lost; whether"))
        << failure;
    const std::string refused = failureOf([&] { answer(*connection, "SELECT 1"); });
    EXPECT_TRUE(refused.starts_with("connection: ")) << refused;
    EXPECT_EQ(refused.find("geheim"), std::string::npos);
    proxy.passAgain();
    EXPECT_EQ(answer(*connection, "SELECT 1"), "1");
}

} // namespace
} // namespace tellurix::odbc
