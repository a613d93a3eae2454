#pragma once

#include "common/database.h"
#include "embedded/Engine.h"

#include <memory>

namespace tellurix::embedded {

/// One connection to the embedded database. Its recordsets may outlive it.
class EmbeddedConnection final : public common::Connection {
public:
    explicit EmbeddedConnection(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}

    common::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<common::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    std::shared_ptr<Engine> engine_;
};

} // namespace tellurix::embedded
