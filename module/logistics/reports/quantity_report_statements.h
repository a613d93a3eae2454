#pragma once

#include <cstdint>
#include <string>

namespace tellurix::logistics::quantity_report {

/// The statements of the quantity reports, beside the guarded update.

/// The contracts of a helper that are not closed, with the quantities. Fields by name: ID, MENGE_ANG,
/// MENGE_BES and the two below; contract and running time have no names.
/// @param helper `ID_PERSONAL`, 0 for none, who has no contracts
std::string contractsOf(std::int32_t helper);

inline constexpr std::size_t contractField = 1;    ///< name and unit
inline constexpr std::size_t runningTimeField = 8; ///< the delivery period
inline constexpr const char* ownersField = "angem. WB MENGE";
inline constexpr const char* deliveredField = "MENGE geliefert";

/// Both quantities of a helper's rows as they are now, by ID.
std::string presentQuantities(std::int32_t helper);

/// What is announced under contracts that are still to be delivered, of persons who are forest helpers now:
/// by helper and contract, by contract, by helper.
std::string listingByHelperAndContract();
std::string listingByContract();
std::string listingByHelper();

} // namespace tellurix::logistics::quantity_report
