#include "module/logistics/reports/quantity_report_statements.h"

#include "module/base/StatementText.h"
#include "module/logistics/takeover_notes.h"

namespace tellurix::logistics::quantity_report {

using base::StatementText;

// clang-format off

namespace {

/// The unit of a contract: the largest of its quantity lines'.
constexpr const char* unitOfContract =
    " left join (select VERTRAEGE.ID_VERTRAG, isnull(MAX(WARENEINHEIT.EINHEIT),'Fm') EINHEIT from VERTRAEGE \r\n"
    " left join VERTRAG_MENGEN on VERTRAEGE.ID_VERTRAG = VERTRAG_MENGEN.ID_VERTRAG \r\n"
    " left join WARENEINHEIT on VERTRAG_MENGEN.ID_WARENEINHEIT = WARENEINHEIT.EINHEIT_ID \r\n"
    " Where IsNull(VERTRAEGE.ABGESCHLOSSEN, 0) = 0 \r\n"
    " group by VERTRAEGE.ID_VERTRAG ) as Einheit on Einheit.ID_VERTRAG = WVO_VERTRAG.ID_VERTRAEGE ";

std::string helperCondition(std::int32_t helper) {
    return helper > 0 ? "= " + std::to_string(helper) : " IS NULL ";
}

/// The rows that all three listings are made of. A delivery period that ends today has not passed.
std::string announcedQuantities() {
    return
        "select PERSONAL.NUMMER, PERSONAL.KURZBEZEICHNUNG, VERTRAEGE.VERTRAG_NAME + ' (' + isnull(Einheit.EINHEIT,'') + ')' as VERTRAG_NAME, \r\n"
        " WVO_VERTRAG_WALDHELFER.MENGE_ANG \r\n"
        " From VERTRAEGE \r\n"
        " inner join WVO_VERTRAG on VERTRAEGE.ID_VERTRAG = WVO_VERTRAG.ID_VERTRAEGE \r\n"
        " and isnull(VERTRAEGE.ABGESCHLOSSEN,0) = 0 \r\n"
        " inner join WVO_VERTRAG_WALDHELFER on WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = WVO_VERTRAG.ID \r\n"
        " inner join PERSONAL on PERSONAL.ID_PERSONAL = WVO_VERTRAG_WALDHELFER.ID_PERSONAL \r\n"
        " and PERSONAL.ABRECH2 = 1 and isnull(PERSONAL.DISABLE,0) = 0 \r\n"
        + std::string{unitOfContract} + "\r\n"
        " where isnull(WVO_VERTRAG_WALDHELFER.MENGE_ANG,0) <> 0 \r\n"
        " and isnull(VERTRAEGE.LIEFERBIS,GETDATE()) >= DATEADD(day, -1, GETDATE()) ";
}

} // namespace

std::string contractsOf(std::int32_t helper) {
    const std::string condition = helperCondition(helper);
    StatementText query{
        " select WVO_VERTRAG_WALDHELFER.ID, VERTRAEGE.VERTRAG_NAME + ' / ' + isnull(Einheit.EINHEIT,''), \r\n"
        " sum(WVO_VERTRAG_WALDHELFER.MENGE_ANG) as MENGE_ANG, \r\n"
        " sum(WVO_VERTRAG_WALDHELFER.MENGE_BES) as MENGE_BES, \r\n"
        " sum(c.MENGEWB) as [angem. WB MENGE], \r\n"
        " round(sum(Geliefert.MENGEGELIEFERT) + ISNULL(UG.Uebergeben,0),0) as [MENGE geliefert], \r\n"
        " WVO_VERTRAG_WALDHELFER.DATUM_CHANGE, WVO_VERTRAG_WALDHELFER.DATUM_CHANGE_ZENT, convert(nvarchar(10),LIEFERVON,104 ) + ' - ' +  convert(nvarchar(10),LIEFERBIS,104 ) \r\n"
        " From VERTRAEGE \r\n"
        " inner join WVO_VERTRAG on VERTRAEGE.ID_VERTRAG = WVO_VERTRAG.ID_VERTRAEGE \r\n"
        " and isnull(VERTRAEGE.ABGESCHLOSSEN,0) = 0 \r\n"
        " inner join WVO_VERTRAG_WALDHELFER on WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = WVO_VERTRAG.ID \r\n"
        " and WVO_VERTRAG_WALDHELFER.ID_PERSONAL "};
    query.fixed(condition)
        .fixed(" LEFT JOIN (\r\n")
        .fixed(takeoverNotes)
        .fixed(") as UG on UG.id_personal_wh = WVO_VERTRAG_WALDHELFER.ID_PERSONAL AND UG.ID_VERTRAEGE = VERTRAEGE.ID_VERTRAG\r\n"
               "    LEFT JOIN (SELECT SUM(WVO2_SORTIMENTDATEN.PLANMENGE) AS MENGEWB, WVO2_SORTIMENTDATEN.ID_WVO_VERTRAG FROM WVO2_SORTIMENTDATEN\r\n"
               "    INNER JOIN WVO2_AUFTRAG_NOTIZ ON WVO2_AUFTRAG_NOTIZ.ID = WVO2_SORTIMENTDATEN.ID_WVO2_AUFTRAG_NOTIZ\r\n"
               "    Where WVO2_SORTIMENTDATEN.ID_WVO_VERTRAG is not null AND WVO2_AUFTRAG_NOTIZ.ID_PERSONAL_WH ")
        .fixed(condition)
        .fixed("    group by WVO2_SORTIMENTDATEN.ID_WVO_VERTRAG) C ON c.ID_WVO_VERTRAG = WVO_VERTRAG.ID\r\n"
               " left join (select sum(l.menge) as MENGEGELIEFERT, isnull(lr.r_vertrag,'') as VERTRAG_NAME \r\n"
               "    from logs_rech lr inner join logs l on lr.id_log = l.id_log \r\n"
               "    where lr.a2_kunde ")
        .fixed(condition)
        .fixed(" group by lr.R_vertrag) as Geliefert on Geliefert.VERTRAG_NAME = VERTRAEGE.VERTRAG_NAME \r\n")
        .fixed(unitOfContract)
        .fixed("\r\n group by WVO_VERTRAG_WALDHELFER.ID, VERTRAEGE.VERTRAG_NAME, Einheit.EINHEIT, UG.Uebergeben, WVO_VERTRAG_WALDHELFER.DATUM_CHANGE, WVO_VERTRAG_WALDHELFER.DATUM_CHANGE_ZENT, LIEFERVON, LIEFERBIS \r\n"
               " order by VERTRAEGE.VERTRAG_NAME + ' / ' + isnull(Einheit.EINHEIT,'') ");
    return query.text();
}

std::string presentQuantities(std::int32_t helper) {
    StatementText query{"SELECT ID,MENGE_ANG,MENGE_BES FROM WVO_VERTRAG_WALDHELFER WHERE ID_PERSONAL = "};
    return query.number(helper).text();
}

std::string listingByHelperAndContract() {
    return announcedQuantities() +
           "\r\n order by PERSONAL.NUMMER, VERTRAEGE.VERTRAG_NAME + ' (' + isnull(Einheit.EINHEIT,'') + ')' ";
}

std::string listingByContract() {
    return "select VERTRAG_NAME, SUM(MENGE_ANG) as MENGE_ANG from ( " + announcedQuantities() +
           " ) as VERTRAG group by VERTRAG_NAME order by SUM(MENGE_ANG) DESC ";
}

std::string listingByHelper() {
    return "select distinct NUMMER, KURZBEZEICHNUNG, SUM(MENGE_ANG) as MENGE_ANG  from ( " + announcedQuantities() +
           " ) as VERTRAG group by NUMMER, KURZBEZEICHNUNG order by NUMMER";
}

// clang-format on

} // namespace tellurix::logistics::quantity_report
