#include "database/embedded/values/Collation.h"

#include <algorithm>
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
    std::vector<unsigned char> characters;
    for (unsigned char character = ' '; character < 0x7F; ++character)
        characters.push_back(character);
    const auto text = [](const unsigned char& character) {
        return std::string_view(reinterpret_cast<const char*>(&character), 1);
    };
    std::sort(characters.begin(), characters.end(),
              [&](const unsigned char& left, const unsigned char& right) {
                  return order_.compare(text(left), text(right)) < 0;
              });
    std::uint8_t rank = 0;
    for (std::size_t index = 0; index < characters.size(); ++index) {
        if (index == 0 || order_.compare(text(characters[index - 1]), text(characters[index])) != 0) ++rank;
        ranks_.at(characters[index]) = rank;
    }
}

int Collation::compare(std::string_view left, std::string_view right) const {
    left = withoutTrailingBlanks(left);
    right = withoutTrailingBlanks(right);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t index = 0; index < common; ++index) {
        const std::uint8_t leftRank = ranks_[static_cast<unsigned char>(left[index])];
        const std::uint8_t rightRank = ranks_[static_cast<unsigned char>(right[index])];
        if (leftRank == 0 || rightRank == 0) return order_.compare(left, right);
        if (leftRank != rightRank) return leftRank < rightRank ? -1 : 1;
    }
    if (left.size() == right.size()) return 0;
    // What follows could be an accent on the last common letter.
    const std::string_view longer = left.size() > right.size() ? left : right;
    if (ranks_[static_cast<unsigned char>(longer[common])] == 0) return order_.compare(left, right);
    return left.size() < right.size() ? -1 : 1;
}

} // namespace tellurix::embedded
