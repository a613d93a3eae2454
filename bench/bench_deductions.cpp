// What the surcharges and deductions of a contract cost with all sixteen lines: opening their screen, and
// saving them on the embedded file. The time is the server's, from the click to the session's next wait
// for the user, with everything drawn.

#include "bench/support/ContractSession.h"
#include "bench/support/SampleFile.h"
#include "bench/support/report.h"
#include "bench/support/statement_name.h"
#include "database/embedded/Database.h"
#include "database/tracing/TracingConnection.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
using bench::Clock;
using bench::Durations;

constexpr std::int32_t contract = 16; // the one of the sample that has all lines
constexpr int sessions = 20;
constexpr int roundsEach = 10;
constexpr const char* editor = "F_Vertrag";
constexpr const char* lines = "F_Abschlag";

/// When the session waited for the user, and how many statements had been sent by then.
struct Wait {
    Clock::time_point time;
    std::size_t sent;
};

void list(const std::string& step, const std::vector<std::string>& sent, const Wait& from, const Wait& to) {
    std::vector<std::pair<std::string, int>> counts; // in the order in which each kind is first sent
    for (std::size_t i = from.sent; i < to.sent; ++i) {
        const std::string name = bench::statementName(sent[i]);
        const auto known = std::ranges::find(counts, name, &std::pair<std::string, int>::first);
        if (known == counts.end())
            counts.emplace_back(name, 1);
        else
            ++known->second;
    }
    bench::heading(std::cout, step + ": " + std::to_string(to.sent - from.sent) + " statements");
    bench::Report report{{"statement", "sent"}};
    for (const auto& [name, count] : counts)
        report.add({name, std::to_string(count)});
    report.print(std::cout);
}

void measure(const embedded::Database& database) {
    Durations first, opening, saving;
    std::vector<std::string> sent;
    std::vector<Wait> waits;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        tracing::TracingConnection traced{
            *connection, [&sent](const tracing::Statement& statement) { sent.push_back(statement.text); }};
        bench::ScriptedPage page;
        page.onWait = [&] { waits.push_back({Clock::now(), sent.size()}); };
        bench::ContractSession session{traced, page};
        for (int round = 0; round < roundsEach; ++round) {
            sent.clear();
            waits.clear();
            page.play({bench::click(editor, "btnAbschlag"), bench::click(lines, "btnOk"),
                       bench::closeWindow(editor)});
            session.open(contract, "R");
            (round == 0 ? first : opening).add(waits.at(1).time - waits.at(0).time);
            saving.add(waits.at(2).time - waits.at(1).time);
        }
    }
    bench::heading(std::cout, "Sixteen lines, in milliseconds");
    bench::Report report{{"", "times", "median", "95 %", "longest"}};
    const auto add = [&report](const std::string& name, const Durations& times) {
        report.add({name, std::to_string(times.count()), bench::fixed(times.median() / 1000, 2),
                    bench::fixed(times.percentile(95) / 1000, 2), bench::fixed(times.longest() / 1000, 2)});
    };
    add("opening, first of a session", first);
    add("opening again", opening);
    add("saving", saving);
    report.print(std::cout);
    list("Opening", sent, waits.at(0), waits.at(1));
    list("Saving", sent, waits.at(1), waits.at(2));
}

} // namespace

int main() {
    try {
        const bench::SampleFile sample;
        const embedded::Database database{sample.path(), bench::standingClock};
        measure(database);
        return EXIT_SUCCESS;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_deductions: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
