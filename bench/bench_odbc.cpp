// The workbench on a server: what goes over the line while a contract is opened, what the adapter adds to a
// statement, and fifty sessions at once. The server is a PostgreSQL of the program's own (see
// database/odbc/README.md), whose dialect is another one; so every query of the screens is sent to it as one
// that answers with the very rows that the embedded database has for it.

#include "bench/support/SampleFile.h"
#include "bench/support/WatchedSession.h"
#include "bench/support/process_memory.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"
#include "module/base/text.h"
#include "tests/database/odbc/PostgresServer.h"
#include "tests/database/odbc/TcpProxy.h"
#include "tests/database/tds/TdsServer.h"

#include <sql.h>
#include <sqlext.h>

#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tellurix;
using bench::Durations;

constexpr const char* editor = "F_Vertrag";
constexpr int sessions = 50;
constexpr int repetitions = 3000;

/// Without the cursors by which the tests read a few rows at a time: each costs statements of the driver's
/// own.
std::string connectionString(const tests::PostgresServer& server, std::uint16_t port) {
    return base::replaceAll(server.source(port).connectionString(), "USEDECLAREFETCH=1", "USEDECLAREFETCH=0");
}

std::unique_ptr<base::Connection> connectTo(const tests::PostgresServer& server, std::uint16_t port = 0) {
    return odbc::Database{odbc::Source::parse(connectionString(server, port)),
                          {.rules = tests::PostgresServer::rules(), .answerTime = std::chrono::seconds{0}}}
        .connect();
}

std::string columnType(base::Recordset& rows, std::size_t index) {
    using enum base::FieldType;
    switch (rows.fieldType(index)) {
    case flag:
        return "boolean";
    case tinyInteger:
    case smallInteger:
        return "smallint";
    case integer:
        return "int";
    case bigInteger:
        return "bigint";
    case decimal:
        return "decimal(18,4)";
    case floating:
        return "double precision";
    case dateTime:
        return "timestamp(3)";
    case text:
        break;
    }
    const int width = rows.textWidth(index);
    return width == 0 ? "text" : "varchar(" + std::to_string(width) + ")";
}

std::string literal(base::Recordset& rows, std::size_t index) {
    const base::Value value = rows.field(index);
    if (std::holds_alternative<base::Null>(value)) return "NULL";
    if (const auto* moment = std::get_if<base::DateTime>(&value)) {
        const base::Date day = base::dayOf(*moment);
        return "'" + std::to_string(static_cast<unsigned>(day.day())) + "." +
               std::to_string(static_cast<unsigned>(day.month())) + "." +
               std::to_string(static_cast<int>(day.year())) + "'";
    }
    const auto* flag = std::get_if<bool>(&value);
    if (flag != nullptr) return *flag ? "true" : "false";
    return "'" + base::replaceAll(rows.text(index), "'", "''") + "'";
}

/// The answers of the embedded database to the queries that came so far, in tables of the server.
class Answers {
public:
    Answers(const embedded::Database& database, const tests::PostgresServer& server)
        : source_(database.connect()), server_(connectTo(server)) {}

    /// A query of the same length and more, with the same columns and rows; empty for what is none.
    std::string queryFor(const std::string& text) {
        const std::lock_guard lock{mutex_};
        const auto known = queries_.find(text);
        if (known != queries_.end()) return known->second;
        const auto rows = source_->execute(text).rows;
        std::string& query = queries_[text];
        if (!rows) return query;
        const std::string table = "ANSWER_" + std::to_string(queries_.size());
        std::string columns;
        for (std::size_t index = 0; index < rows->fieldCount(); ++index)
            columns +=
                (index == 0 ? "\"" : ",\"") + rows->fieldName(index) + "\" " + columnType(*rows, index);
        server_->execute("CREATE TABLE " + table + " (" + columns + ")");
        for (; !rows->atEnd(); rows->moveNext()) {
            std::string values;
            for (std::size_t index = 0; index < rows->fieldCount(); ++index)
                values += (index == 0 ? "" : ",") + literal(*rows, index);
            server_->execute("INSERT INTO " + table + " VALUES (" + values + ")");
        }
        query = "SELECT * FROM " + table + " /* " + text + " */";
        return query;
    }

private:
    std::mutex mutex_;
    std::unique_ptr<base::Connection> source_;
    std::unique_ptr<base::Connection> server_;
    std::map<std::string, std::string> queries_;
};

/// The screens' connection: what they ask goes to the server.
class AskedConnection final : public base::Connection {
public:
    AskedConnection(std::unique_ptr<base::Connection> server, Answers& answers)
        : server_(std::move(server)), answers_(answers) {}

    base::ExecuteResult execute(std::string_view statement) override {
        const std::string query = answers_.queryFor(std::string{statement});
        return query.empty() ? base::ExecuteResult{} : server_->execute(query);
    }
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override {
        return server_->openUpdatable(query);
    }

private:
    std::unique_ptr<base::Connection> server_;
    Answers& answers_;
};

/// Opens the contract on a new session, twice.
/// @return how long it took the second time
bench::Clock::duration openTwice(base::Connection& connection, const std::function<void(int)>& before) {
    bench::ScriptedPage page;
    bench::ContractSession session{connection, page};
    bench::Clock::duration time{};
    for (int round = 0; round < 2; ++round) {
        before(round);
        page.play({bench::closeWindow(editor)});
        const auto start = bench::Clock::now();
        session.open(1, "R");
        time = page.drawnAt(editor) - start;
    }
    return time;
}

/// @param connect a new session, through the proxy
void measureOpening(bench::Report& report, const std::string& driver, const tests::TcpProxy& proxy,
                    const std::function<std::unique_ptr<base::Connection>()>& connect) {
    std::int64_t trips = proxy.roundTrips();
    std::int64_t bytes = proxy.bytes();
    int sent = 0;
    const auto add = [&](const std::string& name, const std::string& statements) {
        report.add({driver + ": " + name, statements, std::to_string(proxy.roundTrips() - trips),
                    std::to_string(proxy.bytes() - bytes)});
        sent = 0;
        trips = proxy.roundTrips();
        bytes = proxy.bytes();
    };
    const auto connection = connect();
    add("connecting, with the session's options", "");
    tracing::TracingConnection counted{*connection, [&](const tracing::Statement&) { ++sent; }};
    openTwice(counted, [&](int round) {
        if (round == 1) add("the first contract of a session", std::to_string(sent));
    });
    add("a contract", std::to_string(sent));
}

void measureOpenings(const tests::PostgresServer& server, Answers& answers, const bench::SampleFile& sample) {
    bench::heading(std::cout, "Opening a contract, over the line");
    bench::Report report{{"", "statements", "round trips", "bytes"}};
    {
        const tests::TcpProxy proxy{server.port()};
        const auto connect = [&] {
            return std::make_unique<AskedConnection>(connectTo(server, proxy.port()), answers);
        };
        // What the screens ask is known then.
        openTwice(*connect(), [](int) {});
        measureOpening(report, "PostgreSQL's driver", proxy, connect);
    }
    const tests::TdsServer tds{sample.path(), bench::standingClock, {}};
    const tests::TcpProxy proxy{tds.port()};
    measureOpening(report, "T-SQL's driver", proxy, [&] {
        return odbc::Database{odbc::Source::parse("SERVER=127.0.0.1;DATABASE=test;UID=test;PWD=test;PORT=" +
                                                  std::to_string(proxy.port()))}
            .connect();
    });
    report.print(std::cout);
}

/// The same statements through the same driver by its functions alone.
class BareConnection {
public:
    explicit BareConnection(std::string text) {
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
        SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
        if (!SQL_SUCCEEDED(SQLDriverConnect(connection_, nullptr, reinterpret_cast<SQLCHAR*>(text.data()),
                                            SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT)))
            throw std::runtime_error{"the bare connection is refused"};
    }
    ~BareConnection() {
        SQLDisconnect(connection_);
        SQLFreeHandle(SQL_HANDLE_DBC, connection_);
        SQLFreeHandle(SQL_HANDLE_ENV, environment_);
    }
    BareConnection(const BareConnection&) = delete;
    BareConnection& operator=(const BareConnection&) = delete;

    void run(std::string text) {
        SQLHSTMT statement = SQL_NULL_HSTMT;
        SQLAllocHandle(SQL_HANDLE_STMT, connection_, &statement);
        SQLExecDirect(statement, reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS);
        SQLSMALLINT columns = 0;
        SQLNumResultCols(statement, &columns);
        std::vector<char> field(4096);
        while (columns > 0 && SQL_SUCCEEDED(SQLFetch(statement)))
            for (SQLSMALLINT column = 1; column <= columns; ++column) {
                SQLLEN length = 0;
                SQLGetData(statement, static_cast<SQLUSMALLINT>(column), SQL_C_CHAR, field.data(),
                           static_cast<SQLLEN>(field.size()), &length);
            }
        SQLFreeHandle(SQL_HANDLE_STMT, statement);
    }

private:
    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
};

void measureStatements(const tests::PostgresServer& server) {
    const auto adapter = connectTo(server);
    BareConnection bare{connectionString(server, 0)};
    adapter->execute(
        "CREATE TABLE MEASURED (ID int PRIMARY KEY, NAME varchar(60), PREIS decimal(12,4), D timestamp(3), "
        "JA boolean, N int)");
    adapter->execute(
        "INSERT INTO MEASURED SELECT G, 'Fichte Wörgl ' || G, G * 1.25, '05.06.2025', true, G FROM "
        "generate_series(1,100) G");
    struct Case {
        const char* name;
        const char* text;
    };
    const Case cases[] = {{"a row of six columns", "SELECT * FROM MEASURED WHERE ID = 17"},
                          {"one number", "SELECT MAX(ID) FROM MEASURED"},
                          {"100 rows of six columns", "SELECT * FROM MEASURED"},
                          {"an update of a row", "UPDATE MEASURED SET N = N + 1 WHERE ID = 17"}};
    bench::heading(std::cout, "A statement, in microseconds: median");
    bench::Report report{{"", "through the adapter", "by the driver's functions", "the adapter's own"}};
    for (const Case& one : cases) {
        Durations through;
        Durations straight;
        for (int each = 0; each < repetitions; ++each) {
            through.add(bench::timeOf([&] {
                const auto rows = adapter->execute(one.text).rows;
                for (; rows && !rows->atEnd(); rows->moveNext())
                    for (std::size_t index = 0; index < rows->fieldCount(); ++index)
                        bench::keep(rows->field(index));
            }));
            straight.add(bench::timeOf([&] { bare.run(one.text); }));
        }
        report.add({one.name, bench::fixed(through.median(), 0), bench::fixed(straight.median(), 0),
                    bench::fixed(through.median() - straight.median(), 0)});
    }
    report.print(std::cout);
}

void measureSessions(const tests::PostgresServer& server, Answers& answers) {
    const std::int64_t before = bench::residentKilobytes("self");
    std::vector<std::unique_ptr<AskedConnection>> connections;
    Durations connecting;
    for (int each = 0; each < sessions; ++each)
        connecting.add(bench::timeOf(
            [&] { connections.push_back(std::make_unique<AskedConnection>(connectTo(server), answers)); }));
    const std::int64_t connected = bench::residentKilobytes("self");
    std::vector<std::thread> users;
    std::mutex mutex;
    Durations opening;
    const auto start = bench::Clock::now();
    for (const auto& connection : connections)
        users.emplace_back([&] {
            const auto time = openTwice(*connection, [](int) {});
            const std::lock_guard lock{mutex};
            opening.add(time);
        });
    for (std::thread& user : users)
        user.join();
    const std::chrono::duration<double, std::milli> all = bench::Clock::now() - start;
    bench::heading(std::cout, std::to_string(sessions) + " sessions on one server, in milliseconds");
    bench::Report report{{"", "median", "longest"}};
    constexpr double perMillisecond = 1000;
    const auto add = [&](const std::string& name, const Durations& times) {
        report.add({name, bench::fixed(times.median() / perMillisecond, 1),
                    bench::fixed(times.longest() / perMillisecond, 1)});
    };
    add("connecting, one after the other", connecting);
    add("opening a contract again while all do so", opening);
    report.add({"all, a contract twice each", bench::fixed(all.count(), 0), ""});
    report.print(std::cout);
    std::cout << "\nMemory of a connected session: " << (connected - before) / sessions << " kB\n";
}

/// How long the user waits until a failure is told, and what is told first.
void measureFailures() {
    tests::PostgresServer server;
    tests::TcpProxy proxy{server.port()};
    bench::heading(std::cout, "Failures, in milliseconds until they are told");
    bench::Report report{{"", "ms", "what is told"}};
    const auto attempt = [&](const std::string& name, const std::function<void()>& work) {
        std::string told = "done";
        const std::chrono::duration<double, std::milli> time = bench::timeOf([&] {
            try {
                work();
            } catch (const base::DatabaseError& error) {
                told = std::string{error.what()}.substr(0, 44);
            }
        });
        report.add({name, bench::fixed(time.count(), 0), told});
    };
    odbc::SessionRules rules = tests::PostgresServer::rules();
    rules.options.emplace_back("SET lock_timeout = 5000");
    const auto connection = odbc::Database{odbc::Source::parse(connectionString(server, proxy.port())),
                                           {.rules = rules, .answerTime = std::chrono::seconds{0}}}
                                .connect();
    const auto colleague = connectTo(server);
    connection->execute("CREATE TABLE T (N int)");
    const auto write = [&] { connection->execute("INSERT INTO T VALUES (1)"); };
    const auto read = [&] { connection->open("SELECT COUNT(*) FROM T"); };
    colleague->execute("BEGIN");
    colleague->execute("LOCK TABLE T");
    attempt("a locked table: a write", write);
    colleague->execute("ROLLBACK");
    attempt("  the same again, unlocked", write);
    proxy.cut();
    attempt("a network that breaks: a write", write);
    attempt("  the same again, on a new connection", write);
    proxy.cut();
    attempt("a network that breaks: a read", read);
    server.kill();
    attempt("a killed server: a write", write);
    attempt("  the same again, the server still down", write);
    server.start();
    attempt("  the same again, the server is back", write);
    server.kill();
    server.start();
    attempt("a server that was restarted meanwhile: a read", read);
    report.print(std::cout);
}

} // namespace

int main() {
    try {
        const bench::SampleFile sample;
        const embedded::Database database{sample.path(), bench::standingClock};
        const tests::PostgresServer& server = tests::PostgresServer::shared();
        Answers answers{database, server};
        measureOpenings(server, answers, sample);
        measureStatements(server);
        measureSessions(server, answers);
        measureFailures();
        return EXIT_SUCCESS;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_odbc: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
