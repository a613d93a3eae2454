#include "standin/services/spreadsheets/TableText.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace tellurix::standin {

namespace {

constexpr std::string_view lineEnd = "\r\n";

[[noreturn]] void fail(std::string_view what) {
    throw std::invalid_argument{"Die Tabelle kann nicht ausgegeben werden: " + std::string{what}};
}

/// The parts of a text between the separators, one more than there are separators.
std::vector<std::string> partsOf(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + separator.size());
    }
}

int rowIn(std::string_view text) {
    int row = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), row);
    if (failure != std::errc{} || end != text.data() + text.size() || row < 1 || row > 1000) fail("ROW");
    return row;
}

} // namespace

TableText TableText::read(std::string_view parameters) {
    TableText table;
    while (!parameters.empty()) {
        const std::size_t equals = parameters.find('=');
        if (equals == std::string_view::npos) fail(parameters);
        const std::string_view key = parameters.substr(0, equals);
        parameters.remove_prefix(equals + 1);
        if (key == "TABLE") {
            // The rest, line ends included; the last one ends a row, and begins none.
            if (parameters.ends_with(lineEnd)) parameters.remove_suffix(lineEnd.size());
            for (const std::string& row : partsOf(parameters, lineEnd))
                table.rows.push_back(partsOf(row, "\t"));
            return table;
        }
        const std::size_t end = std::min(parameters.find(lineEnd), parameters.size());
        const std::string_view value = parameters.substr(0, end);
        if (key == "FORMAT") {
            for (const std::string& entry : partsOf(value, ";"))
                table.numeric.push_back(entry == "0");
        } else if (key == "ROW") {
            table.row = rowIn(value);
        } else {
            fail(key);
        }
        parameters.remove_prefix(std::min(end + lineEnd.size(), parameters.size()));
    }
    fail("TABLE");
}

} // namespace tellurix::standin
