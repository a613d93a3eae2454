#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tellurix::logistics::helpers {

/// The statements on the forest helpers of a contract, beside the guarded update.

/// The helpers of a contract with their quantities; one row without a key where there is none.
/// @param record `WVO_VERTRAG.ID`
/// @param filter part of a number or name that can stand between quotes; empty for all
std::string list(std::int64_t record, std::string_view filter);

inline constexpr const char* numberField = "PERSONALNUMMER";
inline constexpr const char* nameField = "PERSONALKURZBEZEICHNUNG";
inline constexpr const char* plannedField = "MENGEGEPLANT";
inline constexpr const char* ownersField = "MENGE_ANG_WB";
inline constexpr const char* changedByHelperField = "DATUM_CHANGE";
inline constexpr const char* changedByCentreField = "DATUM_CHANGE_ZENT";

/// Both quantities of all helpers as they are now, by ID.
std::string presentQuantities(std::int64_t record);
/// The persons who are helpers now.
std::string present(std::int64_t record);
/// The keys of a person's rows.
std::string rowsOf(std::int64_t record, std::int64_t person);
/// Who can become a helper, with headings that the user reads.
/// @param restriction of the persons that the user may see: " AND …"
std::string eligible(std::string_view language, std::string_view restriction);

std::string add(std::int64_t record, std::int64_t person);
/// By the person, whose rows all go.
std::string removePerson(std::int64_t record, std::int64_t person);
/// One row.
std::string remove(std::int64_t key);

/// Every helper is confirmed what he has announced. The centre's change stamp stays.
std::string confirmAnnounced(std::int64_t record);
/// Every helper is confirmed what he has announced as a forest owner of his own; NULL where he is none.
std::string confirmOwners(std::int64_t record);

} // namespace tellurix::logistics::helpers
