// What the surcharges and deductions of a contract cost with all sixteen lines: opening their screen, and
// saving them on the embedded file. The time is the server's, from the click to the session's next wait
// for the user, with everything drawn.

#include "bench/support/SampleFile.h"
#include "bench/support/WatchedSession.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
using bench::Durations;

constexpr std::int32_t contract = 16; // the one of the sample that has all lines
constexpr int sessions = 20;
constexpr int roundsEach = 10;
constexpr const char* editor = "F_Vertrag";
constexpr const char* lines = "F_Abschlag";

void measure(const embedded::Database& database) {
    Durations first, opening, saving;
    std::vector<std::string> opened, saved;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        bench::WatchedSession session{*connection};
        for (int round = 0; round < roundsEach; ++round) {
            session.play({bench::click(editor, "btnAbschlag"), bench::click(lines, "btnOk"),
                          bench::closeWindow(editor)},
                         [](bench::ContractSession& contracts) { contracts.open(contract, "R"); });
            (round == 0 ? first : opening).add(session.step(0));
            saving.add(session.step(1));
            opened = session.statements(0);
            saved = session.statements(1);
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
    bench::listStatements("Opening", opened);
    bench::listStatements("Saving", saved);
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
