#pragma once

#include "standin/services/WorkbenchServices.h"
#include "tests/support/SampleDatabase.h"
#include "tests/support/ScriptedDisplay.h"
#include "tests/support/StandingClock.h"

#include <gtest/gtest.h>

#include <string>

namespace tellurix::tests {

/// A test of services: a small real database with the sample trade in it, a display that scripts
/// work, and all services of one session.
class ServicesTest : public testing::Test {
private:
    SampleDatabase database_;
    std::unique_ptr<base::Connection> connection_ = database_.connect();

protected:
    /// The first field of a query's first row.
    std::string value(const std::string& query) {
        const std::string row = firstRow(*connection_, query);
        return row.substr(0, row.find(" | "));
    }

    ScriptedDisplay display;
    host::TlxVar session{.connection = connection_.get(), .homeCurrency = "CHF", .site = {}, .user = "anna"};
    standin::TextCatalogue catalogue = standin::TextCatalogue::builtIn();
    standin::WorkbenchServices services{display, session, catalogue, base::Locale::german(),
                                        std::make_unique<StandingClock>(testClock().now())};
    host::HostServices& host = services.host();
};

} // namespace tellurix::tests
