// What the check of a typed key against a database column costs, on a table of ten rows and on one of
// a million: it needs the column's type only, so the time must not grow with the table. And what a long text
// costs that is pasted into a box which filters each of its characters.

#include "bench/support/SampleFile.h"
#include "bench/support/ScriptedPage.h"
#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "database/embedded/Database.h"
#include "display/browser/session/BrowserDisplay.h"
#include "module/parts/M_Common.h"
#include "module/ui/Form.h"
#include "module/ui/controls/TextBox.h"

#include <array>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
using bench::Durations;

constexpr int calls = 20'000;
constexpr int sessions = 20;

struct MeasuredTable {
    std::string name;
    std::int64_t rows;
    Durations first; ///< calls of a new session
    Durations next;
};

class KeyForm final : public ui::Form {
public:
    KeyForm() : Form("KeyForm") {
        setLayout(ui::column({box}));
        load();
        setFocus(box);
    }
    ui::TextBox box{*this, "box", 10};
};

void makeTable(base::Connection& connection, const std::string& name, std::int64_t rows) {
    connection.execute("CREATE TABLE " + name +
                       " (ID int NOT NULL PRIMARY KEY, WERT int NULL, TEXT nvarchar(60) NULL)");
    connection.execute("INSERT INTO " + name + " (ID,WERT,TEXT) VALUES (1,1,'eine Zeile wie jede andere')");
    for (std::int64_t have = 1; have < rows; have *= 2) {
        connection.execute("INSERT INTO " + name + " (ID,WERT,TEXT) SELECT ID + " + std::to_string(have) +
                           ",WERT,TEXT FROM " + name + " WHERE ID <= " + std::to_string(rows - have));
    }
    const auto count = connection.open("SELECT COUNT(*) AS N FROM " + name);
    if (count->integer("N") != rows) throw std::runtime_error{name + " has not got its rows"};
}

void check(const host::TlxVar& session, const KeyForm& form, const MeasuredTable& table) {
    const base::Locale locale = base::Locale::german();
    const std::int16_t taken = parts::CheckKeyForColumn(session, form, '7', table.name, "WERT", locale);
    const std::int16_t refused = parts::CheckKeyForColumn(session, form, 'x', table.name, "WERT", locale);
    if (taken != '7' || refused != 0) throw std::runtime_error{"the keys are not told apart"};
}

bench::Clock::duration timeOfCall(const host::TlxVar& session, const KeyForm& form,
                                  const MeasuredTable& table) {
    const base::Locale locale = base::Locale::german();
    return bench::timeOf(
        [&] { bench::keep(parts::CheckKeyForColumn(session, form, '7', table.name, "WERT", locale)); });
}

host::TlxVar sessionOn(base::Connection& connection) {
    host::TlxVar session;
    session.connection = &connection;
    return session;
}

void measure(const embedded::Database& database, std::array<MeasuredTable, 2>& tables) {
    KeyForm form;
    form.box.setText("12");
    for (int i = 0; i < sessions; ++i) {
        for (MeasuredTable& table : tables) {
            const auto connection = database.connect();
            const host::TlxVar session = sessionOn(*connection);
            table.first.add(timeOfCall(session, form, table));
        }
    }
    const auto connection = database.connect();
    const host::TlxVar session = sessionOn(*connection);
    for (const MeasuredTable& table : tables)
        check(session, form, table);
    // In turns, so that what else the machine does meets both.
    for (int i = 0; i < calls; ++i) {
        for (MeasuredTable& table : tables)
            table.next.add(timeOfCall(session, form, table));
    }
}

constexpr std::size_t pastedCharacters = 20'000;

/// From the page's message to the session's next wait, with the box drawn.
Durations timesToPaste() {
    constexpr int pastes = 50;
    int changes = 0;
    Durations times;
    for (int i = 0; i < pastes; ++i) {
        KeyForm form;
        form.box.onKeyPress = [](char32_t& typed) {
            if (typed == U'x') typed = 0;
        };
        form.box.onChange = [&changes] { ++changes; };
        bench::Step paste{"KeyForm", "box", {}};
        paste.message.kind = browser::PageMessage::Kind::paste;
        paste.message.text = std::string(pastedCharacters, 'a');
        bench::ScriptedPage page;
        std::vector<bench::Clock::time_point> waits;
        page.onWait = [&waits] { waits.push_back(bench::Clock::now()); };
        page.play({paste, bench::closeWindow("KeyForm")});
        browser::BrowserDisplay display{page};
        display.showModal(form);
        times.add(waits.at(1) - waits.at(0));
    }
    if (changes != pastes) throw std::runtime_error{"a pasted text is not one change"};
    return times;
}

} // namespace

int main() {
    try {
        const bench::SampleFile sample;
        const embedded::Database database{sample.path(), bench::standingClock};
        std::array<MeasuredTable, 2> tables{
            {{"BENCH_SMALL", 10, {}, {}}, {"BENCH_LARGE", 1'000'000, {}, {}}}};
        const auto connection = database.connect();
        for (const MeasuredTable& table : tables)
            makeTable(*connection, table.name, table.rows);

        measure(database, tables);
        bench::heading(std::cout, "A call of CheckKeyForColumn, in microseconds");
        bench::Report report{{"rows of the table", "median", "95 %", "first of a session, median"}};
        for (const MeasuredTable& table : tables) {
            report.add({std::to_string(table.rows), bench::fixed(table.next.median(), 2),
                        bench::fixed(table.next.percentile(95), 2), bench::fixed(table.first.median(), 1)});
        }
        report.print(std::cout);

        const Durations pasting = timesToPaste();
        bench::heading(std::cout, "Pasting 20,000 characters into a box with a filter, in milliseconds");
        bench::Report pasted{{"median", "95 %", "longest"}};
        pasted.add({bench::fixed(pasting.median() / 1000, 2), bench::fixed(pasting.percentile(95) / 1000, 2),
                    bench::fixed(pasting.longest() / 1000, 2)});
        pasted.print(std::cout);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "bench_check_key: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
