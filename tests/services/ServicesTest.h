#pragma once

#include "services/SampleDatabase.h"
#include "services/WorkbenchServices.h"
#include "support/ScriptedDisplay.h"

#include <gtest/gtest.h>

#include <string>

namespace tellurix::tests {

/// Eight o'clock on 9 March 2026, for ever.
class FixedClock final : public common::Clock {
public:
    common::DateTime now() const override;
};

/// A test of services: a small real database with the sample trade in it, a display that scripts
/// work, and all services of one session.
class ServicesTest : public testing::Test {
protected:
    ServicesTest();

    /// The first field of a query's first row, "no row" when there is none.
    std::string value(const std::string& query);

private:
    FixedClock clock_;
    SampleDatabase database_{clock_};
    std::unique_ptr<common::Connection> connection_;

protected:
    ScriptedDisplay display;
    host::TlxVar session{.connection = nullptr, .homeCurrency = "CHF", .site = {}, .user = "anna"};
    workbench::TextCatalogue catalogue = workbench::TextCatalogue::builtIn();
    workbench::WorkbenchServices services;
    host::HostServices& host;
};

} // namespace tellurix::tests
