#pragma once

#include <string>
#include <string_view>

namespace tellurix::ui {

/// The access key of a caption: the capital of the character behind "&", or 0. "&&" is a plain "&".
char32_t accessKeyOf(std::string_view caption);

/// The caption as it is read: without the mark of the access key.
std::string plainCaption(std::string_view caption);

} // namespace tellurix::ui
