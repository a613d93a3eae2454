#pragma once

#include "module/base/database.h"

#include <cstddef>
#include <memory>

namespace tellurix::tests {

/// A connection as some servers have it: while a recordset is open, it takes no other statement.
class OneStatementConnection final : public base::Connection {
public:
    explicit OneStatementConnection(base::Connection& inner) : inner_(inner) {}

    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    void requireNoneOpen(std::string_view statement) const;

    base::Connection& inner_;
    std::shared_ptr<std::size_t> open_ = std::make_shared<std::size_t>(0);
};

} // namespace tellurix::tests
