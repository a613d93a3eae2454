#include "module/logistics/spreadsheet_parameters.h"

#include <algorithm>

namespace tellurix::logistics {

std::string tableText(const std::vector<std::vector<std::string>>& rows) {
    std::string text;
    for (const std::vector<std::string>& row : rows) {
        if (!text.empty()) text += "\r\n";
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column > 0) text += '\t';
            std::string cell = row[column];
            std::ranges::replace_if(
                cell, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
            text += cell;
        }
    }
    return text;
}

std::string spreadsheetParameters(std::string_view formats, std::string_view table) {
    // The table takes the rest of the text, whatever is in it. Its first row is the first of the sheet: the
    // title stands in the page header.
    return std::string{"FORMAT="}.append(formats).append("\r\nROW=1\r\nTABLE=").append(table);
}

} // namespace tellurix::logistics
