#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// Thrown for a command line that asks for nothing the program can do; the message says what is
/// wrong with it.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One option of a command line.
struct Option {
    std::string_view name;
    std::string_view value; ///< what stands behind the name, empty for an option without a value
    std::string_view meaning;
    std::function<void(const std::string& value)> set;
};

using Options = std::vector<Option>;

/// Takes one option off a command line, as "--name value" or "--name=value", and sets it.
/// @param at where the option stands; moved on to its value where that is an argument of its own
/// @return false, with nothing done, when it is none of these options
/// @throws UsageError
bool takeOption(const Options& known, std::span<const std::string> arguments, std::size_t& at);

/// What a help lists of them, one below the other.
std::string describe(const Options& options);

/// A value as a number from `least` to `greatest`, or one that is not empty.
/// @throws UsageError when it is none
int numberOf(std::string_view option, const std::string& value, int greatest, int least = 0);
std::string notEmpty(std::string_view option, const std::string& value);

} // namespace tellurix::standin
