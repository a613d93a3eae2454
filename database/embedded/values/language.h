#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// What the platform's own library knows of German texts: ICU on Linux, the system's tables on
/// Windows. Texts are UTF-8.

/// The order of texts, in which upper and lower case are equal and accents count.
class SortOrder {
public:
    /// @throws Fault (other) when the platform has no rules for German
    SortOrder();
    ~SortOrder();

    /// Negative, zero or positive as `left` sorts before, with or after `right`.
    int compare(std::string_view left, std::string_view right) const;

    /// Changes when the rules do, and is another one on each platform.
    std::int32_t version() const;

private:
    struct Rules;
    std::unique_ptr<Rules> rules_;
};

/// The character as which the upper and the lower case of a letter beyond ASCII are compared.
char32_t foldLetter(char32_t character);

std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);

} // namespace tellurix::embedded
