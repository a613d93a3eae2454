#pragma once

/// The numbers, in the host's catalogue, of the texts that more than a caption is made of.
namespace tellurix::host::textNumber {

inline constexpr int invalidEntry = 223;     ///< "Ungültige oder fehlende Eingabe!"
inline constexpr int discardContract = 1078; ///< asked when a new contract is closed without saving

} // namespace tellurix::host::textNumber
