#include "database/embedded/script.h"

#include "module/base/text.h"

namespace tellurix::embedded {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

bool isGo(std::string_view line) {
    const std::size_t start = line.find_first_not_of(blanks);
    if (start == std::string_view::npos) return false;
    const std::string_view word = line.substr(start, line.find_last_not_of(blanks) - start + 1);
    return word.size() == 2 && (word[0] == 'G' || word[0] == 'g') && (word[1] == 'O' || word[1] == 'o');
}

} // namespace

std::vector<std::string_view> splitBatches(std::string_view text) {
    text = base::withoutByteOrderMark(text);
    std::vector<std::string_view> batches;
    const auto add = [&](std::string_view batch) {
        if (batch.find_first_not_of(blanks) != std::string_view::npos) batches.push_back(batch);
    };
    std::size_t batchStart = 0;
    std::size_t lineStart = 0;
    while (lineStart < text.size()) {
        std::size_t lineEnd = text.find('\n', lineStart);
        lineEnd = lineEnd == std::string_view::npos ? text.size() : lineEnd + 1;
        if (isGo(text.substr(lineStart, lineEnd - lineStart))) {
            add(text.substr(batchStart, lineStart - batchStart));
            batchStart = lineEnd;
        }
        lineStart = lineEnd;
    }
    add(text.substr(batchStart));
    return batches;
}

void runScript(base::Connection& connection, std::string_view text) {
    for (const std::string_view batch : splitBatches(text))
        connection.execute(batch);
}

} // namespace tellurix::embedded
