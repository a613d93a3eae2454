#include "database/embedded/execution/EmbeddedConnection.h"

#include "database/embedded/execution/Interpreter.h"
#include "database/embedded/execution/UpdatableEmbeddedRecordset.h"
#include "database/embedded/execution/reported.h"

namespace tellurix::embedded {

base::ExecuteResult EmbeddedConnection::execute(std::string_view statement) {
    return reported(statement, [&] { return Interpreter(engine_, engine_->batchOf(statement)).run(); });
}

std::unique_ptr<base::UpdatableRecordset> EmbeddedConnection::openUpdatable(std::string_view query) {
    return reported(query, [&] { return std::make_unique<UpdatableEmbeddedRecordset>(engine_, query); });
}

} // namespace tellurix::embedded
