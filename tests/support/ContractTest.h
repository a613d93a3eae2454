#pragma once

#include "embedded/Database.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <string>

namespace tellurix::tests {

/// A test of contract screens: a small real database with the sample trade in it, and a host.
class ContractTest : public testing::Test {
protected:
    ContractTest();

    /// The first field of a query's first row, as the statement texts of the tests write it.
    std::string value(const std::string& query);
    /// The first row, its fields separated by " | "; "no row" when there is none.
    std::string row(const std::string& query);

private:
    embedded::Database database_;
    std::unique_ptr<common::Connection> connection_;

protected:
    TestHost host;
};

} // namespace tellurix::tests
