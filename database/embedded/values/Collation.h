#pragma once

#include "database/embedded/values/language.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tellurix::embedded {

/// How texts compare: upper and lower case are equal, umlauts included; accents count; blanks at
/// the end do not; Ä sorts by A. One object serves one connection.
class Collation {
public:
    /// The name under which SQLite knows it.
    static constexpr const char* name = "ts";

    /// @throws Fault (other) when the platform has no rules
    Collation();

    /// Negative, zero or positive as `left` sorts before, with or after `right`.
    int compare(std::string_view left, std::string_view right) const;

    /// Changes when the rules do; indexes built with other rules have to be rebuilt.
    std::int32_t version() const { return order_.version(); }

private:
    SortOrder order_;
    /// The order of the plain ASCII characters among each other, taken from the order; 0 for those
    /// that only it can judge. Most texts here hold nothing else.
    std::array<std::uint8_t, 256> ranks_{};
};

} // namespace tellurix::embedded
