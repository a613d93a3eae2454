#pragma once

/// The numbers, in the host's catalogue, of the texts that more than a caption is made of.
namespace tellurix::host::textNumber {

inline constexpr int deleteRecord = 215;     ///< "Soll der Datensatz wirklich gelöscht werden?"
inline constexpr int invalidEntry = 223;     ///< "Ungültige oder fehlende Eingabe!"
inline constexpr int removeHelper = 247;     ///< asked, before 215, when a forest helper is removed
inline constexpr int helperIsLost = 248;     ///< behind the two: what is lost
inline constexpr int discardContract = 1078; ///< asked when a new contract is closed without saving

} // namespace tellurix::host::textNumber
