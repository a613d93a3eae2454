#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

namespace tellurix::browser {

/// How many may be connected at the same time.
///
/// Who has not shown the key yet waits in a place apart from those who have. When these places are
/// taken, the one that has waited longest goes: an own page shows its key at once, so nobody keeps it
/// out by sitting there.
class Places {
public:
    /// Held as long as the connection lives. Outlived by this object.
    using Place = std::shared_ptr<const void>;

    Places(std::size_t known, std::size_t strangers) : mostKnown_(known), mostStrangers_(strangers) {}

    /// For a new connection. Only on the network's thread, which also gives it back.
    /// @param leave closes it
    Place forStranger(std::function<void()> leave);
    /// For one that has shown the key; null when there are as many as allowed. Any thread may give it back.
    Place forKnown();

private:
    const std::size_t mostKnown_;
    const std::size_t mostStrangers_;
    std::atomic<std::size_t> known_ = 0;
    std::map<std::uint64_t, std::function<void()>> strangers_; ///< by their order of coming
    std::uint64_t lastStranger_ = 0;
};

} // namespace tellurix::browser
