#pragma once

#include "module/base/text.h"

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>

namespace tellurix::base {

/// The whole number that a text is, blanks around it ignored, such as a key that a host answered.
/// @return nothing when the text is anything else, or a number that the type cannot hold
template <std::integral Integer>
std::optional<Integer> wholeNumber(std::string_view text) {
    const std::string_view digits = trim(text);
    Integer number{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    return number;
}

} // namespace tellurix::base
