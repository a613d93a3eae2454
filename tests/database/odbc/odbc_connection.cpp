#include "tests/database/embedded/EmbeddedTest.h"
#include "tests/database/odbc/PostgresServer.h"

#include <set>

/// What PostgreSQL's driver keeps of each connection until the process ends is none of ours. Asked by the
/// sanitizer at the end, under this name.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:psqlodbc";
}

namespace tellurix::embedded {

const Adapter EmbeddedTest::adapter{.database = "postgresql", .tellsPositions = false};

std::unique_ptr<base::Connection> EmbeddedTest::connect() const {
    // A schema each, by the name of the folder that the test would have its file in.
    std::string name = file().parent_path().filename().string();
    for (char& c : name)
        if (c == '-') c = '_';
    static std::set<std::string> made;
    if (made.insert(name).second) tests::PostgresServer::shared().connect()->execute("CREATE SCHEMA " + name);
    return tests::PostgresServer::shared().connect(name);
}

} // namespace tellurix::embedded
