#pragma once

#include "tests/support/SampleDatabase.h"
#include "tests/support/TestHost.h"

#include <gtest/gtest.h>

#include <string>

namespace tellurix::tests {

/// A test of the contract screens: a small real database with the sample trade in it, and a host. At its
/// end all rows that do not belong to a contract which it opened are as they were.
class ContractTest : public testing::Test {
private:
    SampleDatabase database_;
    std::unique_ptr<base::Connection> connection_ = database_.connect();

protected:
    void TearDown() override { EXPECT_EQ(database_.changesBeside(host.contracts, ownTables), ""); }

    /// The first row of a query, its fields separated by " | ", past the module's statements.
    std::string row(const std::string& query) { return firstRow(*connection_, query); }
    /// The same for a query of one field.
    std::string value(const std::string& query) { return row(query); }

    /// The next window asks about what both have changed, shown so, and is answered with a button; without
    /// one it is closed.
    /// @param meanwhile happens while it is open
    void onConflict(const std::string& differences, const std::string& button,
                    const std::function<void()>& meanwhile = {}) {
        host.display.onWindow("F_Inzwischen", [=](User& user) {
            EXPECT_EQ(user.text("txtUnterschiede"), differences);
            if (meanwhile) meanwhile();
            if (button.empty()) return user.close();
            user.click(button);
        });
    }

    std::set<std::string> ownTables; ///< which the test changes in rows of any contract
    TestHost host{*connection_};
};

} // namespace tellurix::tests
