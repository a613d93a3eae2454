#pragma once

#include <cstdint>

namespace tellurix::host {

/// The host's 16-bit Boolean: 0 is False, -1 is True, and any other value counts as True.
enum class Boolean16 : std::int16_t { False = 0, True = -1 };

constexpr Boolean16 toBoolean16(bool value) {
    return value ? Boolean16::True : Boolean16::False;
}
constexpr bool isTrue(Boolean16 value) {
    return value != Boolean16::False;
}

} // namespace tellurix::host
