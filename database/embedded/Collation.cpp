#include "embedded/Collation.h"

#include "embedded/Fault.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace tellurix::embedded {

namespace {

std::string_view withoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

} // namespace

Collation::Collation() {
    UErrorCode status = U_ZERO_ERROR;
    collator_.reset(ucol_open("de", &status));
    if (U_SUCCESS(status)) ucol_setStrength(collator_.get(), UCOL_SECONDARY);
    if (U_FAILURE(status))
        throw Fault(common::DatabaseErrorCategory::other,
                    std::string("The rules for comparing texts cannot be loaded: ") + u_errorName(status));

    std::vector<unsigned char> characters;
    for (unsigned char character = ' '; character < 0x7F; ++character)
        characters.push_back(character);
    const auto text = [](const unsigned char& character) {
        return std::string_view(reinterpret_cast<const char*>(&character), 1);
    };
    std::sort(characters.begin(), characters.end(),
              [&](const unsigned char& left, const unsigned char& right) {
                  return compareAll(text(left), text(right)) < 0;
              });
    std::uint8_t rank = 0;
    for (std::size_t index = 0; index < characters.size(); ++index) {
        if (index == 0 || compareAll(text(characters[index - 1]), text(characters[index])) != 0) ++rank;
        ranks_.at(characters[index]) = rank;
    }
}

int Collation::compareAll(std::string_view left, std::string_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(collator_.get(), left.data(), static_cast<std::int32_t>(left.size()),
                            right.data(), static_cast<std::int32_t>(right.size()), &status);
}

int Collation::compare(std::string_view left, std::string_view right) const {
    left = withoutTrailingBlanks(left);
    right = withoutTrailingBlanks(right);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t index = 0; index < common; ++index) {
        const std::uint8_t leftRank = ranks_[static_cast<unsigned char>(left[index])];
        const std::uint8_t rightRank = ranks_[static_cast<unsigned char>(right[index])];
        if (leftRank == 0 || rightRank == 0) return compareAll(left, right);
        if (leftRank != rightRank) return leftRank < rightRank ? -1 : 1;
    }
    if (left.size() == right.size()) return 0;
    // What follows could be an accent on the last common letter.
    const std::string_view longer = left.size() > right.size() ? left : right;
    if (ranks_[static_cast<unsigned char>(longer[common])] == 0) return compareAll(left, right);
    return left.size() < right.size() ? -1 : 1;
}

std::int32_t Collation::version() const {
    UVersionInfo bytes{};
    ucol_getVersion(collator_.get(), bytes);
    std::uint32_t version = 0;
    for (const std::uint8_t byte : bytes)
        version = version << 8U | byte;
    return static_cast<std::int32_t>(version & 0x7FFFFFFFU);
}

} // namespace tellurix::embedded
