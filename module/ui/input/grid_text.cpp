#include "module/ui/input/grid_text.h"

#include "module/base/text.h"

#include <algorithm>
#include <utility>

namespace tellurix::ui {

std::string oneCell(std::string text) {
    text = base::replaceAll(std::move(text), "\r\n", " ");
    std::ranges::replace_if(
        text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return text;
}

std::string copiedCells(const Grid& grid, bool withHeadings) {
    const auto block = grid.block();
    if (!block && grid.currentRow() == Grid::none) return {};
    const Grid::Cell first = block ? block->first : Grid::Cell{grid.currentRow(), 0};
    const Grid::Cell last =
        block ? block->last : Grid::Cell{grid.currentRow(), static_cast<int>(grid.columns().size()) - 1};
    std::string text;
    bool linesBegun = false;
    const auto addLine = [&](const auto& cellOf) {
        if (std::exchange(linesBegun, true)) text += "\r\n";
        bool begun = false;
        for (int column = first.column; column <= last.column; ++column) {
            if (!grid.columns()[static_cast<std::size_t>(column)].visible) continue;
            text += (begun ? "\t" : "") + oneCell(cellOf(column));
            begun = true;
        }
    };
    if (withHeadings)
        addLine([&](int column) { return grid.columns()[static_cast<std::size_t>(column)].caption; });
    for (int row = first.row; row <= last.row; ++row)
        addLine([&](int column) { return grid.cell(row, column); });
    return text;
}

std::vector<std::vector<std::string>> pastedCells(const std::string& text) {
    std::vector<std::vector<std::string>> lines;
    bool lineBegins = true;
    for (std::size_t at = 0; at < text.size() || !lineBegins;) {
        if (lineBegins) lines.emplace_back();
        std::string cell;
        if (text[at] == '"') {
            for (++at; at < text.size(); ++at) {
                if (text[at] == '"' && (at + 1 == text.size() || text[at + 1] != '"')) break;
                if (text[at] == '"') ++at;
                cell += text[at];
            }
            at = std::min(at + 1, text.size());
        }
        const std::size_t end = std::min(text.find_first_of("\t\r\n", at), text.size());
        lines.back().push_back(cell + text.substr(at, end - at));
        lineBegins = end == text.size() || text[end] != '\t';
        const bool twoSigns = text.compare(end, 2, "\r\n") == 0;
        at = std::min(end + (twoSigns ? 2 : 1), text.size());
        if (end == text.size()) break;
    }
    return lines;
}

} // namespace tellurix::ui
