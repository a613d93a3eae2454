// How long a contract takes to open, and what it costs in statements. The time is the server's: from
// the call of Vertrag_Run until the drawing with the whole editor is handed to the page's connection,
// as text. The workbench's own services, display and embedded database do the work; only the browser
// is missing. Beside it, what the start page shows of a contract at a glance.

#include "bench/support/ContractSession.h"
#include "bench/support/SampleFile.h"
#include "bench/support/report.h"
#include "bench/support/statement_name.h"
#include "database/embedded/Database.h"
#include "database/tracing/TracingConnection.h"
#include "standin/home/contract_glance.h"
#include "standin/home/contract_list.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using namespace tellurix;
using bench::Clock;
using bench::Durations;

constexpr int sessions = 25;
constexpr int roundsEach = 5;
constexpr const char* editor = "F_Vertrag";
constexpr const char* header = "F_HeaderVertrag";

struct Contract {
    std::int32_t id;
    std::string type;
};

std::vector<Contract> contractsOf(base::Connection& connection) {
    std::vector<Contract> contracts;
    const auto rows = connection.open("SELECT ID_VERTRAG,VER_TYPE FROM VERTRAEGE ORDER BY ID_VERTRAG");
    for (; !rows->atEnd(); rows->moveNext()) {
        contracts.push_back({static_cast<std::int32_t>(rows->integer("ID_VERTRAG")), rows->text("VER_TYPE")});
    }
    return contracts;
}

Clock::duration timeToOpen(bench::ContractSession& session, bench::ScriptedPage& page,
                           const Contract& contract) {
    page.play({bench::closeWindow(editor)});
    const Clock::time_point start = Clock::now();
    session.open(contract.id, contract.type);
    return page.drawnAt(editor) - start;
}

std::vector<std::string> row(const std::string& name, const Durations& times) {
    return {name, std::to_string(times.count()), bench::fixed(times.median() / 1000, 3),
            bench::fixed(times.percentile(95) / 1000, 3), bench::fixed(times.longest() / 1000, 3)};
}

void measureOpening(const embedded::Database& database) {
    const std::vector<Contract> contracts = contractsOf(*database.connect());
    Durations firstOfSession, firstOfContract, again;
    std::map<std::int32_t, Durations> byContract;
    for (int i = 0; i < sessions; ++i) {
        const auto connection = database.connect();
        bench::ScriptedPage page;
        bench::ContractSession session{*connection, page};
        std::vector<Contract> order = contracts;
        // Every session begins with another contract.
        std::ranges::rotate(order, order.begin() + i % static_cast<int>(order.size()));
        for (const Contract& contract : order) {
            const Clock::duration time = timeToOpen(session, page, contract);
            (&contract == &order.front() ? firstOfSession : firstOfContract).add(time);
        }
        for (int round = 0; round < roundsEach; ++round) {
            for (const Contract& contract : order) {
                const Clock::duration time = timeToOpen(session, page, contract);
                again.add(time);
                byContract[contract.id].add(time);
            }
        }
    }

    bench::heading(std::cout, "From Vertrag_Run to the first complete drawing, in milliseconds");
    bench::Report report{{"", "openings", "median", "95 %", "longest"}};
    report.add(row("first contract of a new session", firstOfSession));
    report.add(row("each contract for the first time in its session", firstOfContract));
    report.add(row("each contract again", again));
    for (const Contract& contract : contracts) {
        report.add(row("  contract " + std::to_string(contract.id) + ", type " + contract.type,
                       byContract.at(contract.id)));
    }
    report.print(std::cout);
}

/// What the start page reads of a contract while no key is pressed: all of it, and the longest piece, for
/// which a key may have to wait.
void measureGlance(const embedded::Database& database) {
    const auto connection = database.connect();
    bench::ScriptedPage page;
    bench::ContractSession session{*connection, page};
    Durations whole, pieces;
    std::map<std::int32_t, Durations> byContract;
    const std::vector<Contract> contracts = contractsOf(*connection);
    for (int i = 0; i < sessions * roundsEach; ++i) {
        for (const Contract& contract : contracts) {
            standin::GlanceReading reading{session.services(), session.record(), contract.id};
            const auto took = bench::timeOf([&] {
                for (bool more = true; more;)
                    pieces.add(bench::timeOf([&] { more = reading.next(); }));
            });
            whole.add(took);
            byContract[contract.id].add(took);
        }
    }
    bench::heading(std::cout, "A contract at a glance, in milliseconds");
    bench::Report report{{"", "readings", "median", "95 %", "longest"}};
    report.add(row("each contract", whole));
    report.add(row("each piece of one", pieces));
    const auto slowest =
        std::ranges::max_element(byContract, {}, [](const auto& of) { return of.second.median(); });
    report.add(row("the slowest contract, " + std::to_string(slowest->first), slowest->second));
    report.print(std::cout);
}

/// Counts the statements that a session sends between two of its waits for the user.
class StatementCount {
public:
    explicit StatementCount(base::Connection& inner)
        : traced_(inner, [this](const tracing::Statement& statement) { sent_.push_back(statement); }),
          session_(traced_, page_) {
        page_.onWait = [this] { waits_.push_back(sent_.size()); };
    }

    /// Opens a contract and plays the script.
    /// @param steps what each part is called: the opening, then every step of the script; those
    ///        without a name are not listed
    void play(const Contract& contract, bool newContract, std::vector<bench::Step> script,
              const std::vector<std::string>& steps) {
        sent_.clear();
        waits_.clear();
        page_.play(std::move(script));
        session_.open(contract.id, contract.type, newContract);
        waits_.push_back(sent_.size());
        std::size_t from = 0;
        for (std::size_t i = 0; i < waits_.size(); ++i) {
            if (!steps.at(i).empty()) print(steps[i], from, waits_[i]);
            from = waits_[i];
        }
    }

private:
    void print(const std::string& step, std::size_t from, std::size_t to) const {
        // In the order in which each kind is first sent.
        std::vector<std::pair<std::string, int>> counts;
        for (std::size_t i = from; i < to; ++i) {
            const std::string name = bench::statementName(sent_[i].text);
            const auto known = std::ranges::find(counts, name, &std::pair<std::string, int>::first);
            if (known == counts.end())
                counts.emplace_back(name, 1);
            else
                ++known->second;
        }
        bench::heading(std::cout, step + ": " + std::to_string(to - from) +
                                      (to - from == 1 ? " statement" : " statements"));
        bench::Report report{{"statement", "sent"}};
        for (const auto& [name, count] : counts)
            report.add({name, std::to_string(count)});
        report.print(std::cout);
    }

    bench::ScriptedPage page_;
    std::vector<tracing::Statement> sent_;
    std::vector<std::size_t> waits_; ///< how many had been sent at each wait
    tracing::TracingConnection traced_;
    bench::ContractSession session_;
};

void countStatements(const embedded::Database& database) {
    const auto connection = database.connect();
    const Contract contract = contractsOf(*connection).front();
    StatementCount count{*connection};
    count.play(contract, false,
               {bench::click(editor, "btnHeader"), bench::click(header, "btnOk"),
                bench::click(editor, "btnSpeichern")},
               {"Opening a contract", "Opening its header",
                "Saving the header, and what the editor then shows",
                "Saving the editor, and telling the host"});

    const std::int32_t created = standin::createContract(*connection, "Messung", "R");
    count.play({created, "R"}, true, {bench::closeWindow(editor), bench::answer(ui::Answer::yes)},
               {"Opening a new contract", "", "Discarding a new contract"});
}

} // namespace

int main() {
    try {
        const bench::SampleFile sample;
        const embedded::Database database{sample.path(), bench::standingClock};
        measureOpening(database);
        measureGlance(database);
        countStatements(database);
        return EXIT_SUCCESS;
    } catch (const browser::SessionEnded&) {
        return EXIT_FAILURE; // the page has told why
    } catch (const std::exception& error) {
        std::cerr << "bench_open_contract: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
