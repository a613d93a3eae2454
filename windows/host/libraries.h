#pragma once

namespace tellurix::windows {

/// Registers the contract module and the host's companion library, which lie beside this program,
/// for the user who runs it; where Windows does not look at a user's own classes, for the machine.
/// @throws std::runtime_error when a library is missing or refuses
void registerLibraries();
/// Takes back what `registerLibraries` did, in either way.
/// @throws std::runtime_error when a library is missing or refuses
void unregisterLibraries();

} // namespace tellurix::windows
