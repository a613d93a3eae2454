// What the embedded database costs above SQLite. Every statement that the contract editor and the
// contract header send is run through it, as text, and written straight in SQLite's C interface, on
// the same file with the same settings: prepared once, the same values bound, every column of every
// row read as a value of its type, every write committed by itself. Then what the translation of a
// text costs that has not been seen before.

#include "bench/statements/StraightConnection.h"
#include "bench/statements/screen_statements.h"
#include "bench/statements/translation_times.h"
#include "bench/support/SampleFile.h"
#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"
#include "database/embedded/execution/EmbeddedConnection.h"
#include "database/embedded/execution/Engine.h"
#include "display/browser/session/PageChannel.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
using bench::Counterpart;
using bench::Durations;
using bench::StraightConnection;
using bench::StraightStatement;
using Row = StraightStatement::Row;

constexpr int rounds = 40;
constexpr std::chrono::seconds patience{5};
constexpr int runsEach = 25; ///< of one side before the other has its turn

/// The query behind "[update] COLUMN of SELECT …".
std::string editedQuery(const std::string& statement) {
    return statement.substr(statement.find("SELECT"));
}

/// One statement through the embedded database.
class EngineStatement {
public:
    EngineStatement(base::Connection& connection, const std::string& text)
        : connection_(connection), text_(text) {}

    void run() {
        each([](const base::Value& value) { bench::keep(value); }, [] {});
    }
    std::vector<Row> rows() {
        std::vector<Row> rows;
        each([&rows](base::Value value) { rows.back().push_back(std::move(value)); },
             [&rows] { rows.emplace_back(); });
        return rows;
    }

private:
    template <typename Take, typename NextRow>
    void each(const Take& take, const NextRow& nextRow) {
        if (text_.starts_with('[')) {
            const auto rows = connection_.openUpdatable(editedQuery(text_));
            read(*rows, take, nextRow);
            rows->setField("ID_PERSONAL", base::Null{});
            rows->update();
            return;
        }
        const base::ExecuteResult result = connection_.execute(text_);
        if (!result.rows) return;
        for (; !result.rows->atEnd(); result.rows->moveNext())
            read(*result.rows, take, nextRow);
    }
    template <typename Take, typename NextRow>
    static void read(base::Recordset& row, const Take& take, const NextRow& nextRow) {
        nextRow();
        for (std::size_t i = 0; i < row.fieldCount(); ++i)
            take(row.field(i));
    }

    base::Connection& connection_;
    std::string text_;
};

/// What stands in the tables that the two screens write to.
std::vector<Row> contentsOf(StraightConnection& connection) {
    std::vector<Row> contents;
    const auto add = [&](std::string_view sql, bench::Kinds columns) {
        for (Row& row : StraightStatement{connection, sql, {}, columns}.rows())
            contents.push_back(std::move(row));
    };
    add("SELECT * FROM VERTRAEGE ORDER BY ID_VERTRAG", "ittiddddddtttttttttt4444444444iibiiiibbttt");
    add("SELECT COUNT(*),SUM(ID) FROM VERTRAG_PREISE", "ii");
    add("SELECT COUNT(*),SUM(ID) FROM VERTRAG_MENGEN", "ii");
    add("SELECT COUNT(*),SUM(ID) FROM WVO_VERTRAG", "ii");
    add("SELECT COUNT(*),SUM(ID) FROM WVO_VERTAG_KALENDER", "ii");
    add("SELECT COUNT(*),SUM(ID) FROM WVO_VERTRAG_WALDHELFER", "ii");
    return contents;
}

/// The text of `before` for a statement.
std::string preparation(const Counterpart& counterpart, const std::vector<base::Value>& values) {
    std::string sql{counterpart.before};
    for (std::size_t at; (at = sql.find('%')) != std::string::npos;)
        sql.replace(at, 1, std::to_string(std::get<std::int64_t>(values.back())));
    return sql;
}

/// Does everything on two copies of the file, on each by one side, and compares what was read and
/// what then stands there: only the same work may be compared in time.
void requireSameWork(const std::vector<std::string>& statements) {
    const bench::SampleFile engineFile, straightFile;
    const embedded::Database database{engineFile.path(), bench::standingClock};
    const auto engine = database.connect();
    StraightConnection besideEngine{engineFile.path()};
    StraightConnection straight{straightFile.path()};
    for (const std::string& statement : statements) {
        const Counterpart& counterpart = bench::counterpartOf(statement);
        const std::vector<base::Value> values = bench::literalsOf(statement, counterpart.literals);
        const std::string before = preparation(counterpart, values);
        besideEngine.run(before);
        straight.run(before);
        const auto different = [&](const std::string& what) {
            return std::runtime_error{"the two sides " + what + ": " + std::string{counterpart.name}};
        };
        if (EngineStatement{*engine, statement}.rows() !=
            StraightStatement{straight, counterpart.sql, values, counterpart.columns}.rows())
            throw different("read different rows");
        if (contentsOf(besideEngine) != contentsOf(straight)) throw different("write different rows");
    }
}

struct Comparison {
    std::string_view name;
    Durations engine;
    Durations straight;

    double ratio() const { return engine.median() / straight.median(); }
};

Comparison compare(const std::string& statement, const std::shared_ptr<embedded::Engine>& engine,
                   StraightConnection& straight) {
    const Counterpart& counterpart = bench::counterpartOf(statement);
    const std::vector<base::Value> values = bench::literalsOf(statement, counterpart.literals);
    const std::string before = preparation(counterpart, values);
    embedded::EmbeddedConnection connection{engine};
    EngineStatement engineSide{connection, statement};
    StraightStatement straightSide{straight, counterpart.sql, values, counterpart.columns};
    Comparison comparison{counterpart.name, {}, {}};
    // What a statement needs beforehand is done by its own side, because a write of another connection
    // makes SQLite read its pages again.
    const auto runs = [&](auto& side, auto& own, Durations& times) {
        for (int i = 0; i < runsEach; ++i) {
            if (!before.empty()) own.run(before);
            times.add(bench::timeOf([&] { side.run(); }));
        }
    };
    for (int round = 0; round < rounds; ++round) {
        runs(engineSide, engine->connection(), comparison.engine);
        runs(straightSide, straight, comparison.straight);
    }
    return comparison;
}

void compareAll(const std::vector<std::string>& statements) {
    const bench::SampleFile file;
    const auto engine =
        std::make_shared<embedded::Engine>(file.path(), false, patience, bench::standingClock);
    StraightConnection straight{file.path()};
    bench::heading(std::cout,
                   "Through the embedded database and straight in SQLite, in microseconds (medians of " +
                       std::to_string(rounds * runsEach) + " runs each)");
    bench::Report report{{"", "embedded", "straight", "ratio"}};
    std::set<std::string_view> compared;
    double engineSum = 0;
    double straightSum = 0;
    double worst = 0;
    for (const std::string& statement : statements) {
        // The same statement for another contract costs the same.
        if (!compared.insert(bench::counterpartOf(statement).name).second) continue;
        const Comparison comparison = compare(statement, engine, straight);
        engineSum += comparison.engine.median();
        straightSum += comparison.straight.median();
        worst = std::max(worst, comparison.ratio());
        report.add({std::string{comparison.name}, bench::fixed(comparison.engine.median(), 2),
                    bench::fixed(comparison.straight.median(), 2), bench::fixed(comparison.ratio(), 2)});
    }
    report.add({"all together", bench::fixed(engineSum, 2), bench::fixed(straightSum, 2),
                bench::fixed(engineSum / straightSum, 2)});
    report.print(std::cout);
    std::cout << "\n  the greatest ratio of a statement: " << bench::fixed(worst, 2) << '\n';
}

} // namespace

int main() {
    try {
        std::vector<std::string> statements = bench::screenStatements(bench::SampleFile{}.path());
        const auto unknown =
            std::stable_partition(statements.begin(), statements.end(), [](const std::string& statement) {
                return bench::findCounterpart(statement) != nullptr;
            });
        const std::vector<std::string> leftOut(unknown, statements.end());
        statements.erase(unknown, statements.end());
        requireSameWork(statements);
        compareAll(statements);
        bench::measureTranslation(statements, std::cout);
        for (const std::string& statement : leftOut)
            std::cerr << "Not measured, without a counterpart in bench/statements/counterparts.cpp: "
                      << statement << '\n';
        return leftOut.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_statements: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
