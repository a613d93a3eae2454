#pragma once

namespace tellurix::windows {

/// For whom the classes are registered: for everybody on the machine, which takes an administrator,
/// or for the signed-on user.
enum class RegistrationScope { machine, user };

/// Writes this DLL's classes and type library into the registry, with the place where it lies now.
/// @throws AutomationError; then nothing is left behind
void registerServer(RegistrationScope scope);

/// Takes everything away that registering wrote. What is not there any more is no error, and what
/// somebody else has registered meanwhile, under the same names or ids, stays.
/// @throws AutomationError
void unregisterServer(RegistrationScope scope);

} // namespace tellurix::windows
