#pragma once

#include "module/base/own_text.h"
#include "module/lines/LineStatements.h"
#include "module/parts/OpenContract.h"
#include "module/parts/grids/KeyedRow.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tellurix::lines {

/// What a kind of lines is called in statements and towards the host.
struct LineKind {
    const char* table;
    const char* dialogKey;      ///< behind the line's `ID` in the key of the selection dialog
    const char* unitQuery;      ///< EINHEIT_ID and EINHEIT of the units that can be chosen
    const char* lineColumns;    ///< "SELECT …  FROM …", without a condition
    const char* contractColumn; ///< the condition's and the order's columns, as the statement names them
    const char* keyColumn;
    const char* placeColumn;
    base::OwnText none; ///< there are no lines; what begins one is added to it
};

/// The lines of one contract in the database, and the order in which they stand.
///
/// The places of a contract's lines are 1 to n. What an import or a failure left otherwise is repaired by
/// writing only the places that are wrong.
class LineList {
public:
    explicit LineList(const LineKind& kind) : kind_(kind), statements_(kind.table, 0) {}
    void open(const parts::OpenContract& contract);

    /// All lines by their places; last come those without one, which somebody else has just begun: they
    /// must not push the others aside.
    std::vector<parts::KeyedRow> read() const;
    /// One line as `read` answers it, nothing where it is gone.
    std::optional<parts::KeyedRow> read(std::int64_t id) const;
    /// Gives the lines the places 1 to n in the order given.
    /// @param lines as they were read
    void repair(std::span<parts::KeyedRow> lines) const;

    /// The whole line at a place, at its end where there is none.
    std::unique_ptr<base::Recordset> at(int place) const;
    /// `ID` and `SELEKTION_VALUE` of the line at a place, at its end where there is none.
    std::unique_ptr<base::Recordset> keyAndSelectionAt(int place) const;
    /// A line to be changed.
    /// @throws base::Refused when it is gone
    std::unique_ptr<base::UpdatableRecordset> toEditAt(int place) const;
    std::unique_ptr<base::UpdatableRecordset> toEdit(std::int64_t id) const;

    /// Makes a row that has nothing but its contract. @return its `ID`
    std::int64_t begin() const;
    /// Removes a row that was begun and is not to become a line.
    void discard(std::int64_t id) const;
    /// Removes a line, and moves those behind its place up; nothing where it is gone already.
    /// @return the whole line as it was
    std::optional<parts::KeyedRow> remove(std::int64_t id, int place) const;
    /// Makes a removed line anew, at a place from which on the others move down. @return its new `ID`
    /// @throws base::Refused when the contract is gone
    std::int64_t restore(parts::KeyedRow& line, int place) const;
    /// Lets two lines change their places. They never have the same place; where a statement fails, one may
    /// be left at 0, which reading and repairing puts right.
    void swap(std::int64_t id, int place, std::int64_t other, int otherPlace) const;

    /// The selection value of a line.
    /// @throws base::Refused when it is gone
    std::string selectionAt(int place) const;
    std::string selectionOf(std::int64_t id) const;
    /// Writes a selection value whose quotes are doubled already.
    /// @throws base::StatementError when the value would end its literal
    void setSelectionAt(const std::string& literal, int place) const;
    void setSelectionOf(const std::string& literal, std::int64_t id) const;
    /// Writes the text of the selection dialog; an empty one as NULL.
    void setDialogSelectionOf(const std::string& text, std::int64_t id) const;

private:
    base::Connection& connection() const { return contract_.connection(); }
    std::unique_ptr<base::UpdatableRecordset> toEdit(const std::string& query) const;
    std::string selection(const std::string& query) const;
    /// Removes what a restoring that failed has left, as far as it can. @param gap its place, 0 for none
    void takeBack(std::int64_t id, int gap) const;

    const LineKind& kind_;
    parts::OpenContract contract_;
    LineStatements statements_;
};

} // namespace tellurix::lines
