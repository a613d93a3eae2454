#pragma once

#include "module/ui/controls/Grid.h"

#include <cstdint>

namespace tellurix::windows {

/// How the order of a grid's rows goes through COM: 0 for a column that they are not ordered by, 1 upwards,
/// -1 downwards.
inline ui::Grid::Order orderOf(std::int32_t number) {
    if (number == 0) return ui::Grid::Order::none;
    return number > 0 ? ui::Grid::Order::ascending : ui::Grid::Order::descending;
}

inline std::int32_t numberOf(ui::Grid::Order order) {
    if (order == ui::Grid::Order::none) return 0;
    return order == ui::Grid::Order::ascending ? 1 : -1;
}

} // namespace tellurix::windows
