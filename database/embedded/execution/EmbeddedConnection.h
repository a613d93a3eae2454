#pragma once

#include "database/embedded/execution/Engine.h"
#include "module/base/database.h"

#include <memory>

namespace tellurix::embedded {

/// One connection to the embedded database. Its recordsets may outlive it.
class EmbeddedConnection final : public base::Connection {
public:
    explicit EmbeddedConnection(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}

    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    std::shared_ptr<Engine> engine_;
};

} // namespace tellurix::embedded
