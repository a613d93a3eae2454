#include "display/browser/network/secrets.h"

#include <sys/random.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace tellurix::browser {

std::string randomKey() {
    std::array<unsigned char, 16> bytes{};
    // Up to 256 bytes come at once or not at all.
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        throw std::system_error{errno, std::generic_category(), "random numbers for a key"};
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string key;
    for (const unsigned char byte : bytes) {
        key += digits[byte >> 4U];
        key += digits[byte & 15U];
    }
    return key;
}

bool equalInConstantTime(std::string_view given, std::string_view expected) {
    if (given.size() != expected.size()) return false;
    unsigned difference = 0;
    for (std::size_t i = 0; i < given.size(); ++i) {
        difference |= static_cast<unsigned char>(given[i]) ^
                      static_cast<unsigned>(static_cast<unsigned char>(expected[i]));
    }
    return difference == 0;
}

} // namespace tellurix::browser
