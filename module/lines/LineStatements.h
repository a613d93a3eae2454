#pragma once

#include <cstdint>
#include <string>

namespace tellurix::lines {

/// The statements of a line screen that are the same for price and quantity lines but for the table.
/// A line is named by its place in the contract (`At`) or, when it is new, by its key (`Of`).
class LineStatements {
public:
    LineStatements(std::string table, std::int32_t contract)
        : table_(std::move(table)), contract_(contract) {}

    /// Makes a line that has nothing but its contract.
    std::string insert() const;
    /// The key of the line made last, as the one field of one row.
    std::string newestKey() const;
    /// Removes a new line that was cancelled.
    std::string removeOf(std::int64_t id) const;

    /// The whole line, for reading or editing.
    std::string lineAt(int place) const;
    std::string lineOf(std::int64_t id) const;
    /// ID and SELEKTION_VALUE.
    std::string keyAndSelectionAt(int place) const;
    /// SELEKTION_VALUE.
    std::string selectionAt(int place) const;
    std::string selectionOf(std::int64_t id) const;

    /// Writes a selection value whose quotes are doubled already.
    /// @throws base::StatementError when the value would end its literal
    std::string setSelectionAt(const std::string& literal, int place) const;
    std::string setSelectionOf(const std::string& literal, std::int64_t id) const;
    /// Writes the text of the selection dialog; an empty one as NULL.
    std::string setDialogSelectionOf(const std::string& text, std::int64_t id) const;

    /// Moves all lines behind a place up by one.
    std::string closeGapBehind(int place) const;
    /// Moves the line at a place and all behind it down by one.
    std::string openGapAt(int place) const;

private:
    std::string table_;
    std::int32_t contract_;
};

} // namespace tellurix::lines
