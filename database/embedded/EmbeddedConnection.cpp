#include "embedded/EmbeddedConnection.h"

#include "embedded/Interpreter.h"
#include "embedded/UpdatableEmbeddedRecordset.h"
#include "embedded/reported.h"

namespace tellurix::embedded {

common::ExecuteResult EmbeddedConnection::execute(std::string_view statement) {
    return reported(statement, [&] { return Interpreter(engine_, engine_->batchOf(statement)).run(); });
}

std::unique_ptr<common::UpdatableRecordset> EmbeddedConnection::openUpdatable(std::string_view query) {
    return reported(query, [&] { return std::make_unique<UpdatableEmbeddedRecordset>(engine_, query); });
}

} // namespace tellurix::embedded
