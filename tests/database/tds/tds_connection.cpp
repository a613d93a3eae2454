#include "tests/database/embedded/EmbeddedTest.h"
#include "tests/database/tds/TdsServer.h"
#include "tests/database/tds/server_of_environment.h"

namespace tellurix::embedded {

const Adapter EmbeddedTest::adapter{
    .database = "server", .tellsPositions = false, .clockRuns = tests::serverOfEnvironment() != nullptr};

std::unique_ptr<base::Connection> EmbeddedTest::connect() const {
    static std::filesystem::path present;
    static std::unique_ptr<tests::TdsServer> server;
    const bool isNewTest = present != file();
    present = file();
    if (const char* named = tests::serverOfEnvironment()) return tests::connectToServer(named, isNewTest);
    if (isNewTest) {
        server.reset();
        server = std::make_unique<tests::TdsServer>(
            file(), clock(), Database::Options{.create = true, .patience = std::chrono::milliseconds{300}});
    }
    return odbc::Database{odbc::Source::parse("SERVER=127.0.0.1;DATABASE=test;UID=test;PWD=geheim;PORT=" +
                                              std::to_string(server->port()))}
        .connect();
}

namespace {

/// The next run finds the lent database as empty as this one did.
class LeftEmpty final : public testing::Environment {
    void TearDown() override {
        if (tests::serverIsInUse()) tests::connectToServer(tests::serverOfEnvironment(), true);
    }
};

// NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it goes to the test framework
[[maybe_unused]] const auto* const leftEmpty = testing::AddGlobalTestEnvironment(new LeftEmpty);

} // namespace

} // namespace tellurix::embedded
