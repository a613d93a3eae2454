#pragma once

namespace tellurix::logistics {

/// The inside of a derived table: what each forest helper has handed over under each contract, by the
/// takeover notes that count. The two grids with a delivered quantity join it, each with its own condition.
// clang-format off
inline constexpr const char* takeoverNotes =
    "select  WVO_UBERNAHMESCHEIN.ID_VERTRAEGE, id_personal_wh, sum(WVO_UBERNAHMESCH_WB_MENGE.menge) as Uebergeben\r\n"
    "From WVO_UBERNAHMESCHEIN\r\n"
    "inner join WVO_UBERNAHMESCH_WB_MENGE on WVO_UBERNAHMESCHEIN.ID = WVO_UBERNAHMESCH_WB_MENGE.ID_WVO_UBERNAHMESCHEIN\r\n"
    "inner join RELTABLE on RELTABLE.id = WVO_UBERNAHMESCHEIN.id_reltable\r\n"
    "Where IsNull(reltable.gruppe, 0) = 0 And IsNull(reltable.Disable, 0) = 0\r\n"
    "group by  WVO_UBERNAHMESCHEIN.ID_VERTRAEGE, id_personal_wh\r\n";
// clang-format on

} // namespace tellurix::logistics
