#include "tests/database/embedded/EmbeddedTest.h"

namespace tellurix::embedded {

const Adapter EmbeddedTest::adapter{.database = "embedded", .tellsPositions = true};

std::unique_ptr<base::Connection> EmbeddedTest::connect() const {
    return database().connect();
}

} // namespace tellurix::embedded
