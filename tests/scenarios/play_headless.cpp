// Plays a scenario on the workbench's start page without any display:
//     play_headless SCENARIO DATABASE
// DATABASE is a file, or "odbc:" and a connection string.
#include "module/host/module_state.h"
#include "standin/home/F_Start.h"
#include "standin/home/ModuleOpener.h"
#include "tests/scenarios/HeadlessDisplay.h"
#include "tests/scenarios/named_database.h"
#include "tests/support/OneStatementConnection.h"

#include <gtest/gtest.h>

#include <iostream>

namespace tellurix::tests {
namespace {

/// The kept screens hold on to the services and must be gone before them.
struct ModuleUnloading {
    ~ModuleUnloading() { host::releaseModuleState(); }
};

/// @return what went wrong, empty for nothing
std::string play(const std::filesystem::path& scenario, const std::string& database) {
    const standin::SystemClock clock;
    const auto connected = connectTo(database, clock);
    // What holds on the strictest of servers holds everywhere.
    OneStatementConnection connection{*connected};
    const auto catalogue = standin::TextCatalogue::builtIn();
    const auto colleague = connectTo(database, clock);
    HeadlessDisplay display{readScenario(scenario), *colleague};
    host::TlxVar session{.connection = &connection, .homeCurrency = "CHF", .site = {}, .user = "test"};
    standin::WorkbenchServices services{display, session, catalogue};
    display.setErrorHandling(&services.host().errors);
    const ModuleUnloading unloading;
    standin::ModuleOpener opener{services, session};
    standin::F_Start start{services, session, opener};
    try {
        start.Run();
    } catch (const HeadlessDisplay::Over&) {
        return display.failure();
    }
    return "the start page ended by itself";
}

} // namespace
} // namespace tellurix::tests

int main(int count, char** arguments) {
    // What the user of the tests misses in a window is told by failures of the test library.
    testing::InitGoogleTest(&count, arguments);
    if (count != 3) {
        std::cerr << "usage: play_headless SCENARIO DATABASE\n";
        return 2;
    }
    try {
        const std::string failure = tellurix::tests::play(arguments[1], arguments[2]);
        if (failure.empty()) return 0;
        std::cerr << arguments[1] << ", " << failure << "\n";
    } catch (const std::exception& error) {
        std::cerr << arguments[1] << ", " << error.what() << "\n";
    } catch (...) {
        std::cerr << arguments[1] << ": ended early\n";
    }
    return 1;
}
