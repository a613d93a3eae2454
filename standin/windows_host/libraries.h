#pragma once

namespace tellurix::windows {

/// Registers the contract module and the host's companion library, which lie beside this program, for
/// the machine; for the user alone who runs it, when that user may not do so.
/// @throws std::runtime_error when a library is missing or refuses
void registerLibraries();
/// Whether both are registered, wherever they lie.
bool librariesAreRegistered();
/// Takes back what `registerLibraries` did, in either way.
/// @throws std::runtime_error when a library is missing or refuses
void unregisterLibraries();

} // namespace tellurix::windows
