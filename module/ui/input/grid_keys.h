#pragma once

#include "module/ui/controls/Grid.h"
#include "module/ui/input/events.h"

#include <chrono>
#include <string>

namespace tellurix::ui {

/// What a key does in the grid that has the focus: it moves the current cell, marks a block (with Shift),
/// or makes the current column wider or narrower (with Ctrl).
void applyGridKey(Grid& grid, const KeyDownEvent& event);

/// The column beside one that is seen, in that direction; the same one where there is none.
int seenColumn(const Grid& grid, int column, int step);

/// Looks for the row of a grid that begins with what is typed: in the current column, or else in the first
/// one from the left in which any row does.
class RowSearch {
public:
    using Clock = std::chrono::steady_clock;
    /// What is typed after it begins a new search.
    static constexpr Clock::duration pause = std::chrono::seconds{1};

    /// The same letter again goes on to the next row, more letters stay as long as the row fits.
    /// @return the row, `Grid::none` when none begins so
    int typed(const Grid& grid, char32_t character, Clock::time_point now);
    /// What is typed next begins a new search: another key has done something meanwhile.
    void forget() { typed_.clear(); }

private:
    const Grid* grid_ = nullptr; ///< only compared
    std::u32string typed_;       ///< in capitals
    Clock::time_point last_;
};

} // namespace tellurix::ui
