#include "standin/home/options.h"

#include "module/base/whole_number.h"

#include <algorithm>

namespace tellurix::standin {

bool takeOption(const Options& known, std::span<const std::string> arguments, std::size_t& at) {
    const std::string& argument = arguments[at];
    const std::size_t equals = argument.find('=');
    const auto option = std::ranges::find(known, argument.substr(0, equals), &Option::name);
    if (option == known.end()) return false;
    const std::string name{option->name};
    const bool together = equals != std::string::npos;
    if (option->value.empty()) {
        if (together) throw UsageError{name + " takes no value"};
        option->set({});
    } else if (together) {
        option->set(argument.substr(equals + 1));
    } else if (at + 1 < arguments.size()) {
        option->set(arguments[++at]);
    } else {
        throw UsageError{name + " needs a value: " + std::string{option->value}};
    }
    return true;
}

std::string describe(const Options& options) {
    constexpr std::size_t indent = 24;
    std::string text;
    for (const Option& option : options) {
        std::string head = "  " + std::string{option.name};
        if (!option.value.empty()) head += " " + std::string{option.value};
        head.resize(indent, ' ');
        for (const char character : option.meaning) {
            head += character;
            if (character == '\n') head += std::string(indent, ' ');
        }
        text += head + "\n";
    }
    return text;
}

int numberOf(std::string_view option, const std::string& value, int greatest, int least) {
    const auto number = base::wholeNumber<int>(value);
    if (!number || *number < least || *number > greatest) {
        throw UsageError{std::string{option} + " needs a number from " + std::to_string(least) + " to " +
                         std::to_string(greatest) + ", not \"" + value + "\""};
    }
    return *number;
}

std::string notEmpty(std::string_view option, const std::string& value) {
    if (value.empty()) throw UsageError{std::string{option} + " needs a value that is not empty"};
    return value;
}

} // namespace tellurix::standin
