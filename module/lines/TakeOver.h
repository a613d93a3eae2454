#pragma once

#include "module/base/database.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tellurix::lines {

/// Appends copies of the lines of one contract to those of another: the quantity lines, then the
/// price lines, each in their order and behind what the target has already.
class TakeOver {
public:
    TakeOver(base::Connection& connection, std::int32_t source, std::int32_t target);

    /// How many lines the source has.
    int total() const { return static_cast<int>(inserts_.size()); }
    /// How many of them are quantity lines; the others are price lines.
    int quantities() const { return quantities_; }
    /// How many were taken over so far, also when `run` has thrown.
    int done() const { return done_; }
    /// @param progress called after each line
    /// @throws base::DatabaseError when a line cannot be written; those before it stay
    void run(const std::function<void()>& progress);

private:
    base::Connection& connection_;
    std::vector<std::string> inserts_; ///< the statement of each line
    int quantities_;
    int done_ = 0;
};

} // namespace tellurix::lines
