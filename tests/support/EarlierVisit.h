#pragma once

#include "tests/support/ScriptedDisplay.h"

#include <cstdint>
#include <string>

namespace tellurix::tests {

/// Contracts of the sample in which no two fields hold the same: one has every field, the other one
/// only every second.
inline constexpr std::int32_t fullContract = 18;
inline constexpr std::int32_t sparseContract = 19;

/// What a user does in the contract editor and on its screens who leaves everything open: panels,
/// typed texts, ticks, a cell in the grid, a line in work. Nothing of it is saved.
void leaveMuchBehind(ScriptedDisplay& display);
/// The same on one of the line screens.
void leaveLinesBehind(User& user, ScriptedDisplay& display);
/// What all controls of a screen show and whether they can be used: where it was opened before, it is
/// the same as on a screen that was never used.
std::string stateOf(const ui::Form& form);

} // namespace tellurix::tests
