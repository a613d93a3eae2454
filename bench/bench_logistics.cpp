// What the logistics of a contract cost with many helpers, weeks and reports: opening its form and saving
// its helpers, the reports of a week and saving them, the quantity reports of a helper. The time is the
// server's, from what the user does to the session's next wait for the user, with everything drawn.

#include "bench/support/GeneratedFile.h"
#include "bench/support/SampleFile.h"
#include "bench/support/WatchedSession.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace tellurix;
using bench::Durations;
using bench::Step;
using Kind = browser::PageMessage::Kind;

constexpr int sessions = 15;
constexpr const char* editor = "F_Vertrag";
constexpr const char* logistics = "F_Vertrag_WVO";
constexpr const char* list = "F_MultiSelection";
constexpr const char* provision = "F_Bereitstellung_WVO";
constexpr const char* quantities = "F_VertragMengenmeldung_WVO";

Step key(const char* form, ui::Key pressed) {
    Step step{form, {}, {}};
    step.message.kind = Kind::key;
    step.message.key.key = pressed;
    return step;
}

Step cell(const char* form, int row, int column) {
    Step step = bench::chooseRow(form, "MSFG", row);
    step.message.column = column;
    return step;
}

/// Goes to a box and types; the text that was in it is replaced.
void type(std::vector<Step>& script, const char* form, const char* box, const std::string& text) {
    script.push_back(bench::focus(form, box));
    for (const char letter : text)
        script.push_back(bench::character(form, static_cast<unsigned char>(letter)));
}

class Times {
public:
    void add(const std::string& name, const Durations& times) {
        report_.add({name, std::to_string(times.count()), bench::fixed(times.median() / 1000, 2),
                     bench::fixed(times.percentile(95) / 1000, 2), bench::fixed(times.longest() / 1000, 2)});
    }
    void print(const std::string& heading) const {
        bench::heading(std::cout, heading);
        report_.print(std::cout);
    }

private:
    bench::Report report_{{"", "times", "median", "95 %", "longest"}};
};

/// A contract that has sixty helpers and the weeks of a year.
void measureForm(const std::filesystem::path& file, std::int32_t contract, const std::string& where) {
    constexpr int helpers = 60;
    constexpr int announced = 4; // the column
    const embedded::Database database{file, bench::standingClock};
    Durations first, again, saving;
    std::vector<std::string> opened, saved;
    const auto open = [contract](bench::ContractSession& session) { session.open(contract, "R"); };
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        bench::WatchedSession session{*connection};
        for (int round = 0; round < 5; ++round) {
            session.play({bench::click(editor, "btnLieferprofil_WVO"), bench::click(logistics, "btnClose"),
                          bench::closeWindow(editor)},
                         open);
            (round == 0 ? first : again).add(session.step(0));
            opened = session.statements(0);
        }
        std::vector<Step> script{bench::click(editor, "btnLieferprofil_WVO"),
                                 bench::chooseRow(logistics, "SSTab1", 2),
                                 bench::click(logistics, "btnBearbeiten2")};
        for (int row = 0; row < helpers; ++row) {
            script.push_back(cell(logistics, row, announced));
            script.push_back(bench::character(logistics, i % 2 == 0 ? U'8' : U'9'));
            script.push_back(key(logistics, ui::Key::enter));
        }
        const std::size_t save = script.size();
        script.push_back(bench::click(logistics, "btnSpeichern2"));
        script.push_back(bench::click(logistics, "btnClose"));
        script.push_back(bench::closeWindow(editor));
        session.play(std::move(script), open);
        saving.add(session.step(save));
        saved = session.statements(save);
    }
    Times times;
    times.add("opening, first of a session", first);
    times.add("opening again", again);
    times.add("saving sixty helpers", saving);
    times.print("The logistics form with 60 helpers and 52 weeks, " + where + ", in milliseconds");
    bench::listStatements("Opening", opened);
    bench::listStatements("Saving", saved);
}

/// As many helpers as an office could ever add at once.
void measureManyAdded() {
    constexpr std::int64_t persons = 5'000;
    const bench::GeneratedFile file{
        {.contracts = 1, .logistics = {.contracts = 1, .helpers = 1, .persons = persons, .weeks = 1}}};
    const embedded::Database database{file.path(), bench::standingClock};
    const auto connection = database.connect();
    bench::WatchedSession session{*connection};
    const std::vector<Step> script{bench::click(editor, "btnLieferprofil_WVO"),
                                   bench::chooseRow(logistics, "SSTab1", 2),
                                   bench::click(logistics, "btnWaldhelfer"),
                                   bench::click(list, "btnMarkFound"),
                                   bench::click(list, "btnOk"),
                                   bench::click(logistics, "btnClose"),
                                   bench::closeWindow(editor)};
    session.play(script, [](bench::ContractSession& opened) { opened.open(1, "R"); });
    Times times;
    for (const auto& [name, step] :
         {std::pair{"the list of all", 2}, {"marking them", 3}, {"adding them", 4}}) {
        Durations once;
        once.add(session.step(static_cast<std::size_t>(step)));
        times.add(name, once);
    }
    times.print(std::to_string(persons) + " persons added to a contract, in milliseconds");
}

/// A database of the size that an office has after years.
void measureFullSize() {
    const auto begin = std::chrono::steady_clock::now();
    const bench::GeneratedFile file{
        {.contracts = 500,
         .lines = 2,
         .logistics = {.contracts = 500, .helpers = 60, .persons = 600, .weeks = 52}}};
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    bench::heading(std::cout, "500 contracts with 60 helpers and 52 weeks, 1,560,000 reports: generated in " +
                                  bench::fixed(took.count(), 1) + " s, " +
                                  std::to_string(std::filesystem::file_size(file.path()) / 1'000'000) +
                                  " MB");
    // One of the first type.
    measureForm(file.path(), 244, "one of 500");
}

void measureWeek() {
    constexpr std::int64_t contracts = 34;
    constexpr std::int64_t weeks = 10;
    const bench::GeneratedFile file{{.contracts = contracts,
                                     .logistics = {.contracts = contracts,
                                                   .helpers = 300,
                                                   .persons = 600,
                                                   .weeks = weeks,
                                                   .invoiced = 200'000,
                                                   .notes = 50'000}}};
    const embedded::Database database{file.path(), bench::standingClock};
    // Contracts of the first type, and weeks in which no helper's loads are confirmed as announced.
    const std::vector<std::string> names{"R-0000001", "R-0000010", "R-0000028"};
    const std::vector<std::string> periods{"07/2025", "08/2025", "09/2025", "10/2025"};
    Durations loading, saving;
    std::vector<std::string> loaded, saved;
    for (const std::string& period : periods)
        for (const std::string& name : names) {
            const auto connection = database.connect();
            bench::WatchedSession session{*connection};
            std::vector<Step> script;
            type(script, provision, "txtVertrag", name);
            type(script, provision, "txtKalender", period);
            const std::size_t load = script.size();
            script.push_back(bench::focus(provision, "MSFG"));
            script.push_back(bench::click(provision, "btnBearbeiten"));
            script.push_back(bench::click(provision, "btnAllezusagen"));
            const std::size_t save = script.size();
            script.push_back(bench::click(provision, "btnSpeichern"));
            script.push_back(bench::click(provision, "btnSchliesen"));
            session.play(std::move(script),
                         [](bench::ContractSession& opened) { opened.openProvisionReports(1); });
            loading.add(session.step(load));
            loaded = session.statements(load);
            saving.add(session.step(save));
            saved = session.statements(save);
        }
    Times times;
    times.add("the grid of a week", loading);
    times.add("saving 300 changed rows", saving);
    times.print(
        "Provision reports: 300 helpers, 102,000 reports, 200,000 invoiced rows, 50,000 takeover notes, in "
        "milliseconds");
    bench::listStatements("The grid", loaded);
    bench::listStatements("Saving", saved);
}

void measureHelper() {
    const bench::GeneratedFile file{
        {.contracts = 500,
         .lines = 2,
         .logs = 1'000'000,
         .logistics = {.contracts = 500, .helpers = 60, .persons = 150, .weeks = 1, .notes = 50'000}}};
    const embedded::Database database{file.path(), bench::standingClock};
    Durations loading;
    std::vector<std::string> loaded;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        bench::WatchedSession session{*connection};
        std::vector<Step> script;
        type(script, quantities, "txtWaldhelfer", std::to_string(10'001 + i * 9));
        const std::size_t load = script.size();
        script.push_back(key(quantities, ui::Key::enter));
        script.push_back(bench::click(quantities, "btnSchliesen"));
        session.play(std::move(script), [](bench::ContractSession& opened) { opened.openQuantityReports(); });
        loading.add(session.step(load));
        loaded = session.statements(load);
    }
    Times times;
    times.add("the grid of a helper", loading);
    times.print("Quantity reports: a helper on 200 contracts, 1,000,000 logs, in milliseconds");
    bench::listStatements("The grid", loaded);
}

} // namespace

int main() {
    try {
        const bench::SampleFile sample;
        measureForm(sample.path(), 21, "in the sample");
        measureManyAdded();
        measureWeek();
        measureHelper();
        measureFullSize();
        return EXIT_SUCCESS;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_logistics: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
