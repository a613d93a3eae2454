#include "bench/support/report.h"

#include <algorithm>
#include <charconv>

namespace tellurix::bench {

namespace {

/// In characters: every byte of UTF-8 but the trailing ones of a character begins one.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

} // namespace

std::string fixed(double number, int decimals) {
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, decimals);
    return {buffer, result.ptr};
}

void Report::print(std::ostream& out) const {
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(row[i]));
    }
    for (const auto& row : rows_) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string blanks(widths[i] - widthOf(row[i]), ' ');
            out << "  " << (i == 0 ? row[i] + blanks : blanks + row[i]);
        }
        out << '\n';
    }
}

} // namespace tellurix::bench
