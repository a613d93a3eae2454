#pragma once

#include <exception>
#include <string>

namespace tellurix::windows {

/// An error of a screen on its way to the host's library and back: in words, "refused" for what a screen does
/// not do for a reason that the message gives, the name of a database error's category, or empty for any
/// other one.
std::string errorKind(const std::exception& error);

/// The error that such a word and its message stand for.
std::exception_ptr errorOfKind(const std::string& kind, const std::string& message);

} // namespace tellurix::windows
