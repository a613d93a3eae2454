#pragma once

#include "support/SampleDatabase.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <string>

namespace tellurix::tests {

/// A test of the contract screens: a small real database with the sample trade in it, and a host.
class ContractTest : public testing::Test {
private:
    SampleDatabase database_;
    std::unique_ptr<common::Connection> connection_ = database_.connect();

protected:
    /// The first row of a query, its fields separated by " | ", past the module's statements.
    std::string row(const std::string& query) { return firstRow(*connection_, query); }
    /// The same for a query of one field.
    std::string value(const std::string& query) { return row(query); }

    TestHost host{*connection_};
};

} // namespace tellurix::tests
