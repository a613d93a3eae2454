#include "com/automation/wide.h"
#include "database/ado/AdoConnection.h"
#include "standin/ado_objects/embedded_connection.h"
#include "tests/database/embedded/EmbeddedTest.h"

namespace tellurix::embedded {

const Adapter EmbeddedTest::adapter{.database = "embedded", .tellsPositions = false};

std::unique_ptr<base::Connection> EmbeddedTest::connect() const {
    // The file has to be there.
    database().connect();
    windows::Dispatch connection(windows::ado::createEmbeddedConnection(clock()));
    connection.call(L"Open", {windows::narrow(file().wstring())});
    return std::make_unique<windows::ado::AdoConnection>(connection);
}

} // namespace tellurix::embedded
