// What the statement files do not reach: sessions, open rows, editing in place, locks, lost connections.

#include "database/tracing/TracingConnection.h"
#include "module/base/text.h"
#include "tests/database/embedded/EmbeddedTest.h"
#include "tests/database/odbc/PostgresServer.h"

#include <chrono>
#include <filesystem>
#include <thread>

namespace tellurix::odbc {
namespace {

using embedded::answer;
using embedded::failureOf;
using embedded::writtenRow;
using tests::PostgresServer;
using namespace std::chrono_literals;

std::string messageOf(const std::function<void()>& work) {
    try {
        work();
        return "none";
    } catch (const std::exception& error) {
        return error.what();
    }
}

TEST(OdbcSource, IsAConnectionStringANameOrAFileOfItsOwner) {
    const tests::TestFolder folder;
    auto file = [&, number = 0](const std::string& text, std::filesystem::perms rights) mutable {
        const std::string name = "secret" + std::to_string(++number);
        folder.write(name, text);
        std::filesystem::permissions(folder / name, rights);
        return "@" + folder / name;
    };
    using enum std::filesystem::perms;
    struct Case {
        const char* rule;
        std::string text;
        std::string connectionString;
        std::string description;
    };
    const Case cases[] = {
        {"a name", "BUERO", "DSN=BUERO;", "DSN=BUERO;"},
        {"any driver", "Driver={X};Server=s;pwd={a;}}b}", "DRIVER={X};SERVER=s;PWD={a;}}b};",
         "DRIVER={X};SERVER=s;PWD=***;"},
        {"the driver for T-SQL with what it needs", "SERVER=s;UID=u;Password=p",
         "DRIVER={FreeTDS};SERVER=s;UID=u;PASSWORD=p;Port=1433;TDS_Version=7.4;ClientCharset=UTF-8;",
         "DRIVER={FreeTDS};SERVER=s;UID=u;PASSWORD=***;Port=1433;TDS_Version=7.4;ClientCharset=UTF-8;"},
        {"what is said stays", "DRIVER=libtdsodbc.so;SERVER=s;PORT=5;TDS_VERSION=7.3;clientcharset=X",
         "DRIVER=libtdsodbc.so;SERVER=s;PORT=5;TDS_VERSION=7.3;CLIENTCHARSET=X;",
         "DRIVER=libtdsodbc.so;SERVER=s;PORT=5;TDS_VERSION=7.3;CLIENTCHARSET=X;"},
        {"a file, one entry a line", file("\nDRIVER=X\nPWD=y\n", owner_read | owner_write), "DRIVER=X;PWD=y;",
         "DRIVER=X;PWD=***;"},
        {"as another system's editor writes it",
         file("\xEF\xBB\xBF"
              "DRIVER=X\r\n\r\nSERVER = s\r\nPWD = {y;}\r\n",
              owner_read),
         "DRIVER=X;SERVER=s;PWD={y;};", "DRIVER=X;SERVER=s;PWD=***;"},
        {"empty entries are none", "DRIVER=X;; ;PWD=y;", "DRIVER=X;PWD=y;", "DRIVER=X;PWD=***;"},
    };
    for (const Case& one : cases) {
        const Source source = Source::parse(one.text);
        EXPECT_EQ(source.connectionString(), one.connectionString) << one.rule;
        EXPECT_EQ(source.description(), one.description) << one.rule;
    }
    for (const char* wrong : {"DRIVER=X;PWD=a;geheim", "DRIVER=X;geheim;PWD=geheim", "DRIVER={X;PWD=geheim",
                              "DRIVER=X;=geheim"}) {
        const std::string refused = messageOf([&] { Source::parse(wrong); });
        EXPECT_NE(refused.find("stands in braces"), std::string::npos) << wrong << ": " << refused;
        EXPECT_EQ(refused.find("geheim"), std::string::npos) << refused;
    }
    for (const char* nothing : {"", " ", ";"})
        EXPECT_EQ(messageOf([&] { Source::parse(nothing); }), "The connection string is empty");
    EXPECT_EQ(messageOf([&] { Source::parse("@"); }), "There is no name of a file behind the @");
    EXPECT_EQ(Source::parse("DRIVER=X;PWD={a}}b}").withoutSecrets("no a}b, no {a}}b}"), "no ***, no ***");
    for (const auto rights : {owner_read | group_read, owner_read | others_write}) {
        const std::string open = file("DRIVER=X;PWD=y", rights);
        EXPECT_NE(messageOf([&] { Source::parse(open); }).find("chmod 600"), std::string::npos);
    }
    EXPECT_NE(messageOf([&] { Source::parse("@" + folder / "none"); }).find("none"), std::string::npos);
    EXPECT_NE(messageOf([&] { Source::parse("@" + folder / ""); }).find("is no file"), std::string::npos);
}

/// What connecting fails with; the password must not be in it.
std::string refusal(const Source& source, const SessionRules& rules) {
    std::string message =
        failureOf([&] { Database(source, {.rules = rules, .loginTime = 2s, .answerTime = 0s}).connect(); });
    EXPECT_EQ(message.find("geheim"), std::string::npos) << message;
    return message;
}

TEST(OdbcSession, ThatCannotBeUsedIsRefusedWithTheReason) {
    const PostgresServer& server = PostgresServer::shared();
    const auto has = [](const std::string& message, const std::string& part) {
        EXPECT_NE(message.find(part), std::string::npos) << message;
    };
    SessionRules rules = PostgresServer::rules();
    rules.options = {"SET datestyle = 'ISO, MDY'"};
    const std::string monthFirst = refusal(server.source(), rules);
    has(monthFirst, "connection: This login reads dates in another order");
    has(monthFirst, "31.12.2024 as an error");
    has(monthFirst, "Put it right with: ALTER ROLE tellurix SET datestyle = 'ISO, DMY'");
    rules.dayQuestion = "SELECT CAST('05.06.2025' AS timestamp)";
    has(refusal(server.source(), rules), "31.12.2024 as another day");
    has(refusal(server.source(), SessionRules::transactSql()),
        "connection: The server refuses \"SET LANGUAGE German\"");
    has(refusal(Source::parse("DRIVER={PostgreSQL Unicode};SERVER=127.0.0.1;PORT=" +
                              std::to_string(server.port()) + ";UID=tellurix;PWD=geheim"),
                PostgresServer::rules()),
        "connection: The database server cannot be reached");
    has(refusal(server.source(1), PostgresServer::rules()), "cannot be reached (DRIVER");
    has(refusal(Source::parse("NO_SUCH_SOURCE"), rules), "NO_SUCH_SOURCE");
}

/// Two sessions on a table with an identity, as the tests of the embedded database have it.
class Odbc : public embedded::EmbeddedTest {
protected:
    Odbc() {
        first_->execute("CREATE TABLE T (ID int GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY, N int NULL, "
                        "PREIS decimal(10,2) NULL, NAME varchar(20) NULL)");
        first_->execute("INSERT INTO T (N,PREIS,NAME) VALUES (1,1.5,'eins'),(2,2.5,NULL),(3,3.5,'')");
    }
    /// As a server does to a session that an administrator ends.
    void endSessionOfFirst() {
        const std::string number = answer(*first_, "SELECT pg_backend_pid()");
        ASSERT_EQ(answer(*second_, "SELECT pg_terminate_backend(" + number + ")"), "true");
        std::this_thread::sleep_for(100ms);
    }

    std::unique_ptr<base::Connection> first_ = connect();
    std::unique_ptr<base::Connection> second_ = connect();
};

TEST_F(Odbc, OpenRowsShowTheMomentOfTheirQueryThoughTheConnectionWrites) {
    const auto unread = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    const auto halfRead = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    halfRead->moveNext();
    first_->execute("UPDATE T SET N = N * 10");
    first_->execute("DELETE FROM T WHERE ID = 3");
    EXPECT_EQ(unread->integer("N"), 1);
    std::string seen;
    for (; !halfRead->atEnd(); halfRead->moveNext())
        seen += writtenRow(*halfRead) + " ";
    EXPECT_EQ(seen, "2 3 ");
    EXPECT_EQ(answer(*first_, "SELECT N FROM T ORDER BY ID"), "10\n20");
}

TEST_F(Odbc, RowsOutliveTheirConnectionAndTheSameTextIsOpenTwice) {
    const auto outer = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    const auto inner = first_->execute("SELECT N FROM T ORDER BY ID").rows;
    outer->moveNext();
    EXPECT_EQ(inner->integer("N"), 1);
    first_.reset();
    EXPECT_EQ(outer->integer("N"), 2);
    inner->moveNext();
    EXPECT_EQ(inner->integer("N"), 2);
}

TEST_F(Odbc, ColumnsCostNoRowAndAnErrorOfARowComesWhenItIsReached) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 6 / N AS Q, NAME, PREIS FROM T ORDER BY ID DESC").rows;
    EXPECT_EQ(rows->fieldName(0), "q");
    EXPECT_EQ(rows->fieldType(0), base::FieldType::integer);
    EXPECT_EQ(rows->textWidth(1), 20);
    EXPECT_EQ(rows->fieldType(2), base::FieldType::decimal);
    // Another connection's change is still seen, so nothing has been run.
    second_->execute("UPDATE T SET N = 6 WHERE N = 0");
    EXPECT_EQ(rows->integer("Q"), 1);
    second_->execute("INSERT INTO T (N) SELECT 200 - G FROM generate_series(1,200) G");
    const auto late = first_->execute("SELECT 6 / N FROM T ORDER BY ID").rows;
    EXPECT_EQ(late->integer(0), 6);
    EXPECT_EQ(failureOf([&] {
                  for (;; late->moveNext())
                      static_cast<void>(late->field(0));
              }).substr(0, 34),
              "conversion: ERROR: division by zer");
    EXPECT_EQ(answer(*first_, "SELECT COUNT(*) FROM T"), "204");
}

TEST_F(Odbc, AnErrorOfOpenRowsWaitsForTheirReaderNotForTheWrite) {
    first_->execute("INSERT INTO T (N) VALUES (0)");
    const auto rows = first_->execute("SELECT 6 / N FROM T ORDER BY ID").rows;
    EXPECT_EQ(first_->execute("UPDATE T SET PREIS = 1").rowsAffected, 4);
    EXPECT_EQ(failureOf([&] { rows->atEnd(); }).substr(0, 11), "conversion:");
}

TEST_F(Odbc, AQueryIsTracedAsWhatCameOfItWhenItWasAskedFor) {
    std::string seen;
    tracing::TracingConnection traced{*first_, [&](const tracing::Statement& statement) {
                                          seen += statement.text + ": " +
                                                  (statement.error.empty() ? "" : "failed") +
                                                  (statement.duration.count() > 20'000 ? "slow" : "") + "\n";
                                      }};
    failureOf([&] { traced.open("SELECT NIX FROM T"); });
    EXPECT_EQ(std::exchange(seen, {}), "SELECT NIX FROM T: failed\n");
    traced.open("SELECT pg_sleep(0.05)");
    EXPECT_EQ(std::exchange(seen, {}), "SELECT pg_sleep(0.05): slow\n");
    first_->execute("INSERT INTO T (N) SELECT 400 - G FROM generate_series(1,400) G");
    failureOf([&] { traced.open("SELECT 6 / N FROM T ORDER BY ID"); });
    EXPECT_EQ(std::exchange(seen, {}),
              "SELECT 6 / N FROM T ORDER BY ID: \n[rows] of SELECT 6 / N FROM T ORDER BY ID: failed\n");
}

TEST_F(Odbc, RowsWhoseTableChangedBeforeTheFirstFetchAreRefused) {
    const auto rows = first_->execute("SELECT PREIS FROM T").rows;
    EXPECT_EQ(rows->fieldType(0), base::FieldType::decimal);
    second_->execute("ALTER TABLE T DROP COLUMN PREIS");
    second_->execute("ALTER TABLE T ADD PREIS int");
    EXPECT_EQ(failureOf([&] { rows->atEnd(); }),
              "other: The table was changed by another session before its rows were read");
}

TEST_F(Odbc, AllAnswersOfABatchAreReadAndTheLastQueryIsTheAnswer) {
    const auto both = first_->execute(
        "SELECT 1 AS A; INSERT INTO T (N) VALUES (7),(8); SELECT N FROM T WHERE N > 6 ORDER BY N");
    EXPECT_EQ(both.rowsAffected, 2);
    EXPECT_EQ(writtenRow(*both.rows), "7");
    EXPECT_EQ(
        failureOf([&] { first_->execute("UPDATE T SET N = 1; SELECT 1 AS A; SELECT 1/0"); }).substr(0, 11),
        "conversion:");
    EXPECT_EQ(first_->execute("UPDATE T SET N = 5 WHERE N = 99").rowsAffected, 0);
    EXPECT_FALSE(first_->execute("SET lock_timeout = 300").rows);
}

TEST_F(Odbc, LongTextsComeAndGoWhole) {
    std::string text;
    while (text.size() < 400'000)
        text += "Größe € 😀 'x' ";
    first_->execute("CREATE TABLE L (ID int PRIMARY KEY, T text)");
    first_->execute("INSERT INTO L VALUES (1,'" + base::replaceAll(text, "'", "''") + "')");
    EXPECT_EQ(first_->open("SELECT T FROM L")->text(0), text);
    EXPECT_EQ(first_->open("SELECT T FROM L")->textWidth(0), 0);
    const auto rows = first_->openUpdatable("SELECT T FROM L");
    rows->setField("T", text + "!");
    rows->update();
    EXPECT_EQ(second_->open("SELECT T FROM L")->text(0), text + "!");
}

TEST_F(Odbc, ErrorsCarryCategoryNumberStateAndStatement) {
    struct Case {
        const char* statement;
        base::DatabaseErrorCategory category;
        const char* state;
    };
    using enum base::DatabaseErrorCategory;
    const Case cases[] = {
        {"SELECT X FROM NIRGENDS", unknownName, "42P01"},
        {"SELECT NAMEN FROM T", unknownName, "42703"},
        {"SELEC 1", syntax, "42601"},
        {"INSERT INTO T (NAME) VALUES ('länger als zwanzig Zeichen')", conversion, "22001"},
        {"INSERT INTO T (N) VALUES ('x')", conversion, "22P02"},
        {"SELECT CAST('31.02.2025' AS timestamp)", conversion, "22008"},
        {"INSERT INTO T (ID) VALUES (1)", constraint, "23505"},
        {"SELECT CAST(1234567890123456789 AS decimal(20,0))", conversion, ""},
    };
    for (const Case& one : cases) {
        try {
            answer(*first_, one.statement);
            ADD_FAILURE() << one.statement;
        } catch (const base::DatabaseError& error) {
            EXPECT_EQ(error.category(), one.category) << error.what();
            EXPECT_EQ(error.sqlState(), one.state);
            EXPECT_EQ(error.statement(), one.statement);
            EXPECT_EQ(error.nativeCode() != 0, *one.state != '\0');
        }
    }
}

TEST_F(Odbc, ARowIsEditedByItsKeyWithoutTheKeyInTheQuery) {
    const auto rows =
        first_->openUpdatable("SELECT NAME, PREIS, N + 1 AS M FROM T WHERE N > 1 ORDER BY ID DESC");
    EXPECT_EQ(rows->fieldCount(), 3U);
    rows->moveNext();
    rows->setField("name", std::string("O'Hära €😀"));
    rows->setField("preis", std::string("-2.675"));
    rows->update();
    EXPECT_EQ(writtenRow(*rows), "O'Hära €😀 | -2.68 | 3");
    rows->setField("NAME", base::Null{});
    rows->update();
    EXPECT_EQ(failureOf([&] { rows->setField("M", std::int64_t{1}); }),
              "unknownName: The field M is no column of the table T");
    EXPECT_EQ(answer(*second_, "SELECT NAME, PREIS FROM T ORDER BY ID"),
              "eins | 1.50\nNULL | -2.68\n'' | 3.50");
}

TEST_F(Odbc, AKeyOfSeveralColumnsAndOneThatIsEditedItself) {
    first_->execute(
        "CREATE TABLE \"Zeilen T\" (RECH varchar(20), NR int, WERT varchar(5), PRIMARY KEY (RECH, NR))");
    first_->execute("INSERT INTO \"Zeilen T\" VALUES ('a''b',1,'x'),('a''b',2,'y'),('c',1,'z')");
    const auto rows = first_->openUpdatable("SELECT * FROM \"Zeilen T\" WHERE WERT = 'y'");
    rows->setField("NR", std::int64_t{7});
    rows->update();
    rows->setField("WERT", std::string("neu"));
    rows->update();
    const auto removed = first_->openUpdatable("SELECT WERT FROM \"Zeilen T\" WHERE RECH = 'c'");
    removed->remove();
    EXPECT_EQ(failureOf([&] { removed->field(0); }), "other: There is no current row");
    removed->moveNext();
    EXPECT_TRUE(removed->atEnd());
    EXPECT_EQ(answer(*second_, "SELECT * FROM \"Zeilen T\" ORDER BY NR"), "a'b | 1 | x\na'b | 7 | neu");
    // One of the same name elsewhere, with another key, does no harm.
    first_->execute("CREATE SCHEMA ANDERS");
    first_->execute("CREATE TABLE ANDERS.T (N int PRIMARY KEY, NAME varchar(20))");
    const auto own = first_->openUpdatable("SELECT NAME FROM T WHERE ID = 1");
    own->setField("NAME", std::string("x"));
    own->update();
    EXPECT_EQ(answer(*second_, "SELECT NAME FROM T ORDER BY ID"), "x\nNULL\n''");
}

TEST_F(Odbc, ARowThatIsGoneOrWasChangedIsTold) {
    const auto rows = first_->openUpdatable("SELECT * FROM T ORDER BY ID");
    second_->execute("UPDATE T SET NAME = 'EINS' WHERE ID = 1");
    rows->setField("NAME", std::string("uno"));
    EXPECT_EQ(failureOf([&] { rows->update(); }),
              "other: The row of T that was being edited was changed by somebody else: name");
    // What nobody else touched is written.
    rows->moveNext();
    second_->execute("UPDATE T SET N = 22 WHERE ID = 2");
    rows->setField("NAME", std::string("due"));
    rows->update();
    rows->moveNext();
    second_->execute("DELETE FROM T WHERE ID = 3");
    rows->setField("NAME", std::string("tre"));
    EXPECT_EQ(failureOf([&] { rows->update(); }),
              "other: The row of T that was being edited is no longer there");
    EXPECT_EQ(failureOf([&] { rows->remove(); }),
              "other: The row of T that was being edited is no longer there");
    EXPECT_EQ(answer(*first_, "SELECT ID,N,NAME FROM T ORDER BY ID"), "1 | 1 | EINS\n2 | 22 | due");
}

TEST_F(Odbc, OnlyRowsOfOneTableWithAKeyAreEdited) {
    first_->execute("CREATE TABLE K (A int)");
    struct Case {
        const char* query;
        const char* failure;
    };
    const Case cases[] = {
        {"SELECT T.N FROM T, K", "syntax: Only a query on one table can be opened for editing"},
        {"SELECT T.N FROM T JOIN K ON 1=1", "syntax: Only a query on one table can be opened for editing"},
        {"SELECT DISTINCT N FROM T", "syntax: Only a query on one table can be opened for editing"},
        {"DELETE FROM T", "syntax: Only a query on one table can be opened for editing"},
        {"SELECT N FROM (SELECT N FROM T) A", "syntax: Only a query on one table can be opened for editing"},
        {"SELECT * FROM NIRGENDS", "unknownName: ERROR: relation \"nirgends\" does not exist"},
        {"SELECT * FROM K", "other: The rows of K cannot be edited: the table has no key"},
    };
    for (const Case& one : cases) {
        const std::string failure = failureOf([&] { first_->openUpdatable(one.query); });
        EXPECT_TRUE(failure.starts_with(one.failure)) << one.query << ": " << failure;
    }
    // What was not there may be there the next time.
    second_->execute("CREATE TABLE NIRGENDS (ID int PRIMARY KEY, N int)");
    EXPECT_TRUE(first_->openUpdatable("SELECT * FROM NIRGENDS")->atEnd());
}

TEST_F(Odbc, ALockIsWaitedForAsLongAsTheSessionSaysAndTheConnectionLivesOn) {
    second_->execute("BEGIN");
    second_->execute("UPDATE T SET N = 7");
    // Meanwhile a third session is answered: nobody waits in the driver manager.
    std::string failure;
    std::thread waiting{[&] { failure = failureOf([&] { first_->execute("UPDATE T SET N = 8"); }); }};
    const auto third = connect();
    EXPECT_EQ(answer(*third, "SELECT COUNT(*) FROM T WHERE N < 4"), "3");
    EXPECT_EQ(failure, "");
    waiting.join();
    EXPECT_EQ(failure.substr(0, 7), "locked:");
    second_->execute("ROLLBACK");
    EXPECT_EQ(failureOf([&] { first_->execute("UPDATE T SET N = 8"); }), "none");
}

TEST_F(Odbc, ALostConnectionIsToldByAWriteWhichIsNotRepeatedAndMadeAnewByTheNext) {
    endSessionOfFirst();
    const std::string failure = failureOf([&] { first_->execute("INSERT INTO T (N) VALUES (4)"); });
    EXPECT_TRUE(failure.starts_with("connection: The connection to the database server was lost")) << failure;
    EXPECT_EQ(answer(*second_, "SELECT COUNT(*) FROM T"), "3");
    first_->execute("INSERT INTO T (N) VALUES (4)");
    // The new session is set like the old one.
    EXPECT_EQ(answer(*first_, "SELECT CAST('05.06.2025' AS timestamp), COUNT(*) FROM T"), "2025-06-05 | 4");
}

TEST_F(Odbc, AQueryOnALostConnectionIsSentOnceMoreButItsHalfReadRowsAreNot) {
    endSessionOfFirst();
    EXPECT_EQ(answer(*first_, "SELECT COUNT(*) FROM T"), "3");
    first_->execute("INSERT INTO T (N) SELECT G FROM generate_series(1,1000) G");
    const auto half = second_->execute("SELECT N FROM T ORDER BY ID").rows;
    half->moveNext();
    ASSERT_EQ(answer(*first_, "SELECT COUNT(pg_terminate_backend(pid)) FROM pg_stat_activity "
                              "WHERE pid <> pg_backend_pid() AND datname = current_database()"),
              "1");
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(failureOf([&] {
                  for (;; half->moveNext())
                      static_cast<void>(half->field(0));
              }).substr(0, 11),
              "connection:");
    // That has been told; the next statement has a new connection.
    EXPECT_EQ(failureOf([&] { second_->execute("UPDATE T SET N = 1 WHERE ID = 1"); }), "none");
}

TEST(OdbcServer, ThatIsKilledAndComesBackIsFoundAgainByTheNextStatement) {
    PostgresServer server;
    const auto connection = server.connect();
    connection->execute("CREATE TABLE T (N int)");
    server.kill();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(failureOf([&] { connection->execute("INSERT INTO T VALUES (1)"); }).substr(0, 11),
                  "connection:");
    EXPECT_NE(failureOf([&] { answer(*connection, "SELECT * FROM T"); }).find("cannot be reached"),
              std::string::npos);
    server.start();
    connection->execute("INSERT INTO T VALUES (2)");
    EXPECT_EQ(answer(*connection, "SELECT * FROM T"), "2");
}

} // namespace
} // namespace tellurix::odbc
