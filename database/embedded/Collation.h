#pragma once

#include <unicode/ucol.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace tellurix::embedded {

/// How texts compare: upper and lower case are equal, umlauts included; accents count; blanks at
/// the end do not; Ä sorts by A. One object serves one connection.
class Collation {
public:
    /// The name under which SQLite knows it.
    static constexpr const char* name = "ts";

    /// @throws Fault (other) when ICU has no rules
    Collation();

    /// Negative, zero or positive as `left` sorts before, with or after `right`.
    int compare(std::string_view left, std::string_view right) const;

    /// Changes when the rules do; indexes built with other rules have to be rebuilt.
    std::int32_t version() const;

private:
    struct Close {
        void operator()(UCollator* collator) const { ucol_close(collator); }
    };

    int compareAll(std::string_view left, std::string_view right) const;

    std::unique_ptr<UCollator, Close> collator_;
    /// The order of the plain ASCII characters among each other, taken from ICU; 0 for those that
    /// only ICU can judge. Most texts here hold nothing else.
    std::array<std::uint8_t, 256> ranks_{};
};

} // namespace tellurix::embedded
