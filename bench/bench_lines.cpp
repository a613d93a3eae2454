// What a contract with many lines, and a trade with many logs, costs its user: opening the editor and
// the line screens, going to a quantity line with what was delivered against it, and writing a price
// in the grid. The first two are the server's time in this process, without a browser; the last goes
// through the workbench in its own process and a socket, as the page does it.

#include "bench/support/ContractSession.h"
#include "bench/support/GeneratedFile.h"
#include "bench/support/MeasuredPage.h"
#include "bench/support/SampleFile.h"
#include "bench/support/WorkbenchProcess.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"
#include "database/tracing/TracingConnection.h"

#include <boost/asio/co_spawn.hpp>

#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
namespace net = boost::asio;
using bench::Clock;
using bench::Durations;
using bench::GeneratedFile;

constexpr std::int32_t contract = 1; // the first that is generated, of the first type
constexpr const char* contractType = "R";
constexpr int sessions = 15;
constexpr int commits = 400;
constexpr int manyLines = 500;

constexpr const char* start = "F_Start";
constexpr const char* editor = "F_Vertrag";
constexpr const char* priceScreen = "F_VertragPreise";
constexpr const char* quantityScreen = "F_VertragMengen";
constexpr const char* explanation = "F_OffeneMenge";
constexpr const char* grid = "MSFlexGrid1";

std::vector<std::string> times(const Durations& measured) {
    return {bench::fixed(measured.median() / 1000, 2), bench::fixed(measured.percentile(95) / 1000, 2),
            bench::fixed(measured.longest() / 1000, 2)};
}

std::vector<std::string> joined(std::vector<std::string> row, const std::vector<std::string>& more) {
    row.insert(row.end(), more.begin(), more.end());
    return row;
}

/// A session on the generated contract that notes when each step began, and how many statements had
/// been sent by then.
class WatchedSession {
public:
    explicit WatchedSession(base::Connection& connection)
        : traced_(connection, [this](const tracing::Statement&) { ++sent_; }), session_(traced_, page_) {
        page_.onWait = [this] { waits_.push_back({Clock::now(), sent_}); };
    }

    /// Opens the contract and plays the script, which closes it again.
    void play(std::vector<bench::Step> script) {
        waits_.clear();
        sent_ = 0;
        began_ = Clock::now();
        page_.play(std::move(script));
        session_.open(contract, contractType);
    }

    /// From the opening to the first drawing of the editor.
    Clock::duration opening() const { return page_.drawnAt(editor) - began_; }
    int statementsOfOpening() const { return waits_.at(0).sent; }
    /// From a step to the session's next wait, with everything drawn that the step changed.
    Clock::duration step(std::size_t index) const {
        return waits_.at(index + 1).time - waits_.at(index).time;
    }
    int statementsOfStep(std::size_t index) const {
        return waits_.at(index + 1).sent - waits_.at(index).sent;
    }

private:
    struct Wait {
        Clock::time_point time;
        int sent;
    };

    bench::ScriptedPage page_;
    std::vector<Wait> waits_;
    int sent_ = 0;
    Clock::time_point began_;
    tracing::TracingConnection traced_;
    bench::ContractSession session_;
};

void measureOpening() {
    struct Screen {
        std::string name;
        Durations first, again;
        int statements = 0;
    };
    bench::heading(std::cout,
                   "Opening a contract by its number of price and of quantity lines, in milliseconds");
    bench::Report report{
        {"", "lines of each kind", "statements", "first of a session", "95 %", "again", "95 %"}};
    for (const int lines : {3, 50, manyLines}) {
        const GeneratedFile file{{.lines = lines}};
        const embedded::Database database{file.path(), bench::standingClock};
        std::vector<Screen> screens{
            {"the contract editor", {}, {}}, {"its price lines", {}, {}}, {"its quantity lines", {}, {}}};
        for (int i = 0; i < sessions; ++i) {
            const auto connection = database.connect();
            WatchedSession session{*connection};
            for (const bool first : {true, false}) {
                session.play({bench::click(editor, "PreisButton"), bench::click(priceScreen, "cmdOk"),
                              bench::click(editor, "PosButton"), bench::click(quantityScreen, "cmdOk"),
                              bench::closeWindow(editor)});
                const Clock::duration taken[] = {session.opening(), session.step(0), session.step(2)};
                const int sent[] = {session.statementsOfOpening(), session.statementsOfStep(0),
                                    session.statementsOfStep(2)};
                for (std::size_t k = 0; k < screens.size(); ++k) {
                    (first ? screens[k].first : screens[k].again).add(taken[k]);
                    screens[k].statements = sent[k];
                }
            }
        }
        for (const Screen& screen : screens) {
            report.add({screen.name, std::to_string(lines), std::to_string(screen.statements),
                        bench::fixed(screen.first.median() / 1000, 2),
                        bench::fixed(screen.first.percentile(95) / 1000, 2),
                        bench::fixed(screen.again.median() / 1000, 2),
                        bench::fixed(screen.again.percentile(95) / 1000, 2)});
        }
    }
    report.print(std::cout);
}

/// Goes to one quantity line and back to the first, several times in each of several sessions.
Durations timesToSelect(const embedded::Database& database, int line) {
    constexpr int visits = 4;
    Durations measured;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        WatchedSession session{*connection};
        std::vector<bench::Step> script{bench::click(editor, "PosButton")};
        for (int visit = 0; visit < visits; ++visit) {
            script.push_back(bench::chooseRow(quantityScreen, grid, line == 1 ? 1 : 0));
            script.push_back(bench::chooseRow(quantityScreen, grid, line - 1));
        }
        script.push_back(bench::click(quantityScreen, "cmdOk"));
        script.push_back(bench::closeWindow(editor));
        session.play(std::move(script));
        for (std::size_t visit = 0; visit < visits; ++visit)
            measured.add(session.step(2 + 2 * visit));
    }
    return measured;
}

void measureSelecting() {
    struct Trade {
        std::int64_t logs, booked;
    };
    constexpr int lines = 2'000;
    bench::heading(std::cout, "Selecting a quantity line, until its open quantity is drawn, in milliseconds");
    bench::Report report{{"logs", "booked to the contract", "line", "median", "95 %", "longest"}};
    for (const Trade& trade : {Trade{1'000'000, 20'000}, Trade{100'000, 20'000}, Trade{1'000'000, 2'000}}) {
        const GeneratedFile file{{.lines = lines, .logs = trade.logs, .booked = trade.booked}};
        const embedded::Database database{file.path(), bench::standingClock};
        for (const int line : {1, 5, 50, 500, lines}) {
            report.add(
                joined({std::to_string(trade.logs), std::to_string(trade.booked), std::to_string(line)},
                       times(timesToSelect(database, line))));
        }
    }
    report.print(std::cout);
}

/// Opens the explanation of one quantity line several times.
Durations timesToExplain(const embedded::Database& database, int line) {
    constexpr std::size_t visits = 4;
    Durations measured;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        WatchedSession session{*connection};
        std::vector<bench::Step> script{bench::click(editor, "PosButton"),
                                        bench::chooseRow(quantityScreen, grid, line - 1)};
        for (std::size_t visit = 0; visit < visits; ++visit) {
            script.push_back(bench::click(quantityScreen, "btnOffen"));
            script.push_back(bench::click(explanation, "btnSchliessen"));
        }
        script.push_back(bench::click(quantityScreen, "cmdOk"));
        script.push_back(bench::closeWindow(editor));
        session.play(std::move(script));
        for (std::size_t visit = 0; visit < visits; ++visit)
            measured.add(session.step(2 + 2 * visit));
    }
    return measured;
}

void measureExplaining() {
    bench::heading(std::cout, "Showing how the open quantity of a line comes about, in milliseconds");
    bench::Report report{{"lines", "logs of the contract", "line", "median", "95 %", "longest"}};
    const GeneratedFile file{{.lines = manyLines, .logs = 20'000, .booked = 20'000}};
    const embedded::Database database{file.path(), bench::standingClock};
    for (const int line : {2, 50, manyLines}) {
        report.add(joined({std::to_string(manyLines), "20000", std::to_string(line)},
                          times(timesToExplain(database, line))));
    }
    report.print(std::cout);
}

/// Types a price into a cell far down and commits it: Enter stays on the row, Up goes on.
net::awaitable<void> editPrices(bench::MeasuredPage& client, const bench::WorkbenchProcess& workbench,
                                Durations& staying, Durations& goingOn) {
    constexpr int priceColumn = 2;
    constexpr int enterKey = 13;
    constexpr int upKey = 38;
    co_await client.connect(workbench.port(), workbench.key());
    co_await client.perform(start, "grdContracts", bench::rowChosen(0));
    co_await client.perform(start, "btnOpen", bench::clicked());
    co_await client.perform(editor, "PreisButton", bench::clicked());
    co_await client.perform(priceScreen, "chkEdit", bench::clicked());
    for (int i = 0; i < commits; ++i) {
        nlohmann::json cell = bench::rowChosen(manyLines - 1 - i % 100);
        cell["column"] = priceColumn;
        co_await client.perform(priceScreen, grid, cell);
        co_await client.perform(priceScreen, "", bench::typed(static_cast<char>('1' + i / 100)));
        co_await client.perform(priceScreen, "", bench::typed('5'));
        const bool stays = i % 2 == 0;
        (stays ? staying : goingOn)
            .add(co_await client.perform(priceScreen, "", bench::keyPressed(stays ? enterKey : upKey)));
    }
}

/// @throws std::runtime_error unless the last round's prices are in the database
void requireWritten(const GeneratedFile& file) {
    const embedded::Database database{file.path(), bench::standingClock};
    const auto written = database.connect()->open(
        "SELECT COUNT(*) AS ANZAHL FROM VERTRAG_PREISE WHERE ORDNUNG > 400 AND PREIS = 45");
    if (written->integer("ANZAHL") != 100) throw std::runtime_error{"not every price was written"};
}

void measureCommits() {
    const GeneratedFile file{{.lines = manyLines}};
    Durations staying, goingOn;
    {
        const bench::WorkbenchProcess workbench{file.path()};
        net::io_context context{1};
        bench::MeasuredPage client{context};
        std::exception_ptr failure;
        // Through a function object: inlined here, the coroutine's memory confuses the compiler's check of
        // new against delete.
        const std::function<net::awaitable<void>()> work = [&] {
            return editPrices(client, workbench, staying, goingOn);
        };
        net::co_spawn(context, work, [&failure](const std::exception_ptr& error) { failure = error; });
        context.run();
        if (failure) std::rethrow_exception(failure);
    }
    requireWritten(file);
    bench::heading(std::cout, "Writing a price in the grid of " + std::to_string(manyLines) +
                                  " lines, from the key to its answer, in milliseconds");
    bench::Report report{{"", "commits", "median", "95 %", "longest"}};
    report.add(joined({"Enter", std::to_string(staying.count())}, times(staying)));
    report.add(
        joined({"Up, with the fields of the row above", std::to_string(goingOn.count())}, times(goingOn)));
    report.print(std::cout);
}

} // namespace

int main() {
    try {
        measureOpening();
        measureSelecting();
        measureExplaining();
        measureCommits();
        return EXIT_SUCCESS;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_lines: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
