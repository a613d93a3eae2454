// How long the workbench takes from a key press to its answer while fifty users type at once, and how
// much memory a further session takes that waits for its user. The workbench runs as its own process;
// the users are connections of this one, which type into the free numbers of a contract's header.

#include "bench/support/MeasuredPage.h"
#include "bench/support/SampleFile.h"
#include "bench/support/WorkbenchProcess.h"
#include "bench/support/measure.h"
#include "bench/support/report.h"

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>

#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tellurix;
namespace net = boost::asio;
using bench::Clock;
using bench::Durations;
using bench::MeasuredPage;

constexpr int users = 50;
constexpr int keysEach = 200;
constexpr int fewSessions = 10;
constexpr int manySessions = 60;
constexpr int tabKey = 9;

constexpr const char* start = "F_Start";
constexpr const char* editor = "F_Vertrag";
constexpr const char* header = "F_HeaderVertrag";

using Clients = std::vector<std::unique_ptr<MeasuredPage>>;
using Work = std::function<net::awaitable<void>(MeasuredPage&, int)>;

/// Has clients work at the same time and waits for all.
/// @param from the first of them
/// @throws what one of them threw
void together(net::io_context& context, Clients& clients, std::size_t from, const Work& work) {
    std::exception_ptr failure;
    for (std::size_t i = from; i < clients.size(); ++i) {
        net::co_spawn(context, work(*clients[i], static_cast<int>(i)),
                      [&failure](const std::exception_ptr& error) {
                          if (error && !failure) failure = error;
                      });
    }
    context.restart();
    context.run();
    if (failure) std::rethrow_exception(failure);
}

net::awaitable<void> openContract(MeasuredPage& client, int number) {
    // The contracts in turn; there are a dozen open ones at least.
    co_await client.perform(start, "grdContracts", bench::rowChosen(number % 12));
    co_await client.perform(start, "btnOpen", bench::clicked());
    client.state().top(editor);
}

net::awaitable<void> wait(net::steady_timer& timer, Clock::duration time) {
    timer.expires_after(time);
    co_await timer.async_wait(net::use_awaitable);
}

/// How users type.
struct Pace {
    std::string name;
    /// On average between two key presses, evenly spread from half to one and a half of it; a key also
    /// waits for the answer to the one before, as in the page.
    Clock::duration pause;
    /// The caret is put somewhere before each key, which the page tells with it.
    bool movesCaret = false;
};

/// Types 12,5 and Tab into one number box after the other, round and round.
net::awaitable<void> typeNumbers(net::io_context& context, MeasuredPage& client, int number, const Pace& pace,
                                 Durations& answers) {
    static constexpr std::string_view text = "12,5\t";
    constexpr int boxes = 10;
    net::steady_timer timer{context};
    std::minstd_rand random{static_cast<unsigned>(number) + 1};
    std::uniform_int_distribution<Clock::rep> pauses{pace.pause.count() / 2, pace.pause.count() * 3 / 2};
    int box = 0;
    co_await client.perform(header, "txtNumber(0)", bench::focused());
    for (int i = 0; i < keysEach; ++i) {
        if (pace.pause.count() > 0) co_await wait(timer, Clock::duration{pauses(random)});
        const char key = text[static_cast<std::size_t>(i) % text.size()];
        if (key != '\t') {
            const std::string focusedBox = "txtNumber(" + std::to_string(box % boxes) + ")";
            if (pace.movesCaret) co_await client.tell(header, focusedBox, bench::caretMoved(0));
            answers.add(co_await client.perform(header, "", bench::typed(key)));
        } else if (++box % boxes != 0) {
            answers.add(co_await client.perform(header, "", bench::keyPressed(tabKey)));
        } else {
            answers.add(co_await client.perform(header, "txtNumber(0)", bench::focused()));
        }
    }
}

void connect(net::io_context& context, Clients& clients, const bench::WorkbenchProcess& workbench,
             std::size_t count) {
    const std::size_t before = clients.size();
    while (clients.size() < count)
        clients.push_back(std::make_unique<MeasuredPage>(context));
    together(context, clients, before, [&workbench](MeasuredPage& client, int) {
        return client.connect(workbench.port(), workbench.key());
    });
}

void measureRoundTrips() {
    bench::heading(std::cout, "From a key press to its answer, " + std::to_string(users) +
                                  " users at once, in milliseconds");
    bench::Report report{{"", "keys", "median", "95 %", "99 %", "longest", "keys a second",
                          "processor time of the workbench a key"}};
    const bench::SampleFile sample;
    const bench::WorkbenchProcess workbench{sample.path()};
    net::io_context context{1};
    Clients clients;
    connect(context, clients, workbench, users);
    together(context, clients, 0, openContract);
    together(context, clients, 0, [](MeasuredPage& client, int) -> net::awaitable<void> {
        co_await client.perform(editor, "btnHeader", bench::clicked());
        client.state().top(header);
    });
    using namespace std::chrono_literals;
    for (const Pace& pace :
         {Pace{"a key every 200 ms", 200ms}, Pace{"a key every 20 ms", 20ms}, Pace{"without a pause", 0ms},
          Pace{"a key every 20 ms, the caret moved before", 20ms, true}}) {
        Durations answers;
        const double usedBefore = workbench.processorSeconds();
        const Clock::duration time = bench::timeOf([&] {
            together(context, clients, 0, [&](MeasuredPage& client, int number) {
                return typeNumbers(context, client, number, pace, answers);
            });
        });
        const double used = workbench.processorSeconds() - usedBefore;
        const auto keys = static_cast<double>(answers.count());
        report.add({pace.name, std::to_string(answers.count()), bench::fixed(answers.median() / 1000, 3),
                    bench::fixed(answers.percentile(95) / 1000, 3),
                    bench::fixed(answers.percentile(99) / 1000, 3), bench::fixed(answers.longest() / 1000, 3),
                    bench::fixed(keys / std::chrono::duration<double>(time).count(), 0),
                    bench::fixed(used / keys * 1000, 3)});
    }
    report.print(std::cout);
}

std::int64_t settledKilobytes(const bench::WorkbenchProcess& workbench) {
    std::this_thread::sleep_for(std::chrono::milliseconds{500});
    return workbench.memory();
}

void measureMemory() {
    bench::heading(std::cout, "Memory of the workbench with idle sessions, in kilobytes");
    bench::Report report{{"showing", "without", std::to_string(fewSessions) + " sessions",
                          std::to_string(manySessions) + " sessions", "each further session"}};
    struct Case {
        std::string name;
        Work work;
    };
    for (const Case& shown : {Case{"the start page", {}}, Case{"a contract", openContract}}) {
        const bench::SampleFile sample;
        const bench::WorkbenchProcess workbench{sample.path()};
        net::io_context context{1};
        Clients clients;
        const std::int64_t none = settledKilobytes(workbench);
        const auto with = [&](std::size_t count) {
            const std::size_t before = clients.size();
            connect(context, clients, workbench, count);
            if (shown.work) together(context, clients, before, shown.work);
            return settledKilobytes(workbench);
        };
        const std::int64_t few = with(fewSessions);
        const std::int64_t many = with(manySessions);
        report.add({shown.name, std::to_string(none), std::to_string(few), std::to_string(many),
                    std::to_string((many - few) / (manySessions - fewSessions))});
    }
    report.print(std::cout);
}

} // namespace

int main() {
    try {
        measureRoundTrips();
        measureMemory();
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "bench_round_trip: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
