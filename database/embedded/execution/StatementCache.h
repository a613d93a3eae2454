#pragma once

#include "database/embedded/execution/Batch.h"

#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace tellurix::embedded {

/// The statement texts that a connection used last, parsed, with what has been compiled of them.
/// Screens send the same texts over and over; others, with keys in them, never return, so the
/// oldest make room.
class StatementCache {
public:
    /// The batch of this text, parsed now when it is new.
    /// @throws Fault (syntax)
    std::shared_ptr<Batch> find(std::string_view text);
    void clear();

private:
    static constexpr std::size_t capacity = 256;
    /// Longer texts are loads of rows, which do not come again.
    static constexpr std::size_t longestKept = 65'536;

    using Entries = std::list<std::shared_ptr<Batch>>; // the latest in front
    Entries entries_;
    std::unordered_map<std::string_view, Entries::iterator> byText_;
};

} // namespace tellurix::embedded
