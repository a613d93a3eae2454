#include "module/logistics/reports/ProvisionStatements.h"

#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/base/field_text.h"
#include "module/logistics/day_table.h"
#include "module/logistics/row_saving.h"
#include "module/logistics/takeover_notes.h"
#include "module/parts/fields/typed_text.h"

namespace tellurix::logistics {

using base::StatementText;

namespace {

// clang-format off
constexpr const char* kwText =
    "RIGHT('0'+CAST(WVO_VERTAG_KALENDER.WOCHE as nvarchar(2)),2)+'/'+CAST(WVO_VERTAG_KALENDER.JAHR as nvarchar(4)) AS KW";
constexpr const char* firstAndLastDay =
    "(select convert(nvarchar(10),min(dtTable.DayDate),104) from @temp dtTable where dtTable.ISO_KW = WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR)"
    " + ' - ' + "
    "(select convert(nvarchar(10),max(dtTable.DayDate),104) from @temp dtTable where dtTable.ISO_KW = WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR)"
    " AS LONG";
constexpr const char* weeksOfContract =
    " FROM WVO_VERTAG_KALENDER"
    " INNER JOIN WVO_VERTRAG ON WVO_VERTRAG.ID = WVO_VERTAG_KALENDER.ID_WVO_VERTRAG"
    " WHERE WVO_VERTRAG.ID_VERTRAEGE = ";

constexpr const char* helperColumns =
    "SELECT PERSONAL.NUMMER,"
    "ISNULL(PERSONAL.NAME,'') + ' ' + ISNULL(PERSONAL.VORNAME,''),"
    "WVO_BEREITMELDUNG_KW.ZUEGE,"
    "WVO_BEREITMELDUNG_KW.BEMERKUNG,"
    "WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT,"
    "WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT,"
    "WVO_BEREITMELDUNG_KW.ID,"
    "PERSONAL.ID_PERSONAL, PERSONAL.STRASSE,PERSONAL.PLZ,PERSONAL.ORT,PERSONAL.TELEFON,PERSONAL.HANDY, "
    "WVO_VERTRAG_WALDHELFER.MENGE_ANG, WVO_VERTRAG_WALDHELFER.MENGE_BES, "
    "WVO_BEREITMELDUNG_KW.DATUM_CHANGE, WVO_BEREITMELDUNG_KW.DATUM_CHANGE_ZENT, round(ISNULL(VERR.MengeVerrechnet,0) + ISNULL(UG.Uebergeben,0),0) as Geliefert "
    " FROM WVO_VERTRAG_WALDHELFER"
    " LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = WVO_VERTRAG_WALDHELFER.ID_PERSONAL"
    " INNER JOIN WVO_VERTRAG ON WVO_VERTRAG.ID = WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG"
    " LEFT JOIN WVO_BEREITMELDUNG_KW ON WVO_BEREITMELDUNG_KW.ID_VERTRAEGE = WVO_VERTRAG.ID_VERTRAEGE"
    " AND WVO_BEREITMELDUNG_KW.ID_PERSONAL_WH = WVO_VERTRAG_WALDHELFER.ID_PERSONAL"
    " AND WVO_BEREITMELDUNG_KW.JAHR = ";
constexpr const char* invoiced =
    " LEFT JOIN (\r\n"
    "select a2_kunde, vertraege.ID_VERTRAG, sum(A1_MENGE) as MengeVerrechnet\r\n"
    "from wvo_stat_logs_rech inner join vertraege on vertraege.VERTRAG_NAME = wvo_stat_logs_rech.r_vertrag\r\n"
    "Where IsNull(vertraege.ABGESCHLOSSEN, 0) = 0\r\n"
    "group by a2_kunde, vertraege.ID_VERTRAG\r\n"
    ") as VERR on VERR.A2_kunde = WVO_VERTRAG_WALDHELFER.ID_PERSONAL AND VERR.ID_VERTRAG = WVO_VERTRAG.ID_VERTRAEGE";
constexpr const char* ofHelperAndContract =
    ") as UG on UG.id_personal_wh = WVO_VERTRAG_WALDHELFER.ID_PERSONAL AND UG.ID_VERTRAEGE = WVO_VERTRAG.ID_VERTRAEGE";
// clang-format on

/// A whole number of loads, or NULL.
std::string loads(const base::Value& value) {
    const auto number = base::numberIn(value);
    return number ? number->toString() : "NULL";
}

} // namespace

// clang-format off

std::string reportingContracts(std::int16_t modul) {
    return StatementText{"SELECT VERTRAG_NAME AS LONG FROM VERTRAEGE WHERE ID_VERTRAG IN ("
                         "SELECT WVO_VERTRAG.ID_VERTRAEGE FROM WVO_VERTRAG"
                         " INNER JOIN WVO_VERTRAG_WALDHELFER ON WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = WVO_VERTRAG.ID AND ISNULL(BEREITSELLUNGS,0) <> 0 )"
                         " AND ISNULL(ABGESCHLOSSEN,0)=0 "
                         " AND ID_FAKTART = "}
        .number(modul)
        .text();
}

std::string contractOfName(ui::TextBox& box) {
    return "SELECT ID_VERTRAG,VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG IN ("
           "SELECT WVO_VERTRAG.ID_VERTRAEGE FROM WVO_VERTRAG"
           " INNER JOIN WVO_VERTRAG_WALDHELFER ON WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = WVO_VERTRAG.ID)"
           " AND VERTRAG_NAME = '" + parts::typedText(box) + "'"
           " AND ISNULL(ABGESCHLOSSEN,0)=0";
}

std::string ProvisionStatements::weeks() const {
    return std::string{"SELECT "} + kwText + " " + weeksOfContract + contract() +
           " ORDER BY WVO_VERTAG_KALENDER.JAHR,WVO_VERTAG_KALENDER.WOCHE";
}

std::string ProvisionStatements::weekOfText(ui::TextBox& box) const {
    return std::string{dayTable} +
           "SELECT ID,KW,LONG"
           " FROM (SELECT (100*WVO_VERTAG_KALENDER.JAHR+WVO_VERTAG_KALENDER.WOCHE) AS ID," + kwText + "," + firstAndLastDay +
           weeksOfContract + contract() + ") AS KALENDER"
           " WHERE KW = '" + parts::typedText(box) + "'";
}

std::string ProvisionStatements::helpers(ui::TextBox& name, ui::TextBox& number) const {
    StatementText query{helperColumns};
    query.number(of_.year)
        .fixed(" AND WVO_BEREITMELDUNG_KW.WOCHE = ")
        .number(of_.week)
        .fixed(invoiced)
        .fixed(" LEFT JOIN (\r\n")
        .fixed(takeoverNotes)
        .fixed(ofHelperAndContract)
        .fixed(" WHERE WVO_VERTRAG.ID_VERTRAEGE = ")
        .number(contract());
    if (!name.text().empty())
        query.fixed(" AND PERSONAL.KURZBEZEICHNUNG LIKE '%" + parts::typedText(name) + "%'");
    if (!number.text().empty())
        query.fixed(" AND CAST(PERSONAL.NUMMER as nvarchar(20)) LIKE '" + parts::typedText(number) + "%'");
    return query.fixed(" ORDER BY PERSONAL.NUMMER").text();
}

std::string ProvisionStatements::reports() const {
    return StatementText{"SELECT ID,ID_PERSONAL_WH AS ID_PERSONAL,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT FROM WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = "}
        .number(contract())
        .fixed(" AND JAHR = ")
        .number(of_.year)
        .fixed(" AND WOCHE = ")
        .number(of_.week)
        .text();
}

std::string ProvisionStatements::otherReports() const {
    return StatementText{"SELECT SUM(ZUEGE),SUM(ZUEG_ZUGESAGT)"
                         " FROM WVO_BEREITMELDUNG_KW"
                         " WHERE ID_VERTRAEGE = "}
        .number(contract())
        .fixed("   AND JAHR <> ")
        .number(of_.year)
        .fixed("   AND WOCHE <> ")
        .number(of_.week)
        .text();
}

std::string ProvisionStatements::loadsByWeek() const {
    return StatementText{"SELECT WVO_VERTAG_KALENDER.JAHR,WVO_VERTAG_KALENDER.WOCHE,"
                         "SUM(WVO_BEREITMELDUNG_KW.ZUEGE) AS ZUEGE,SUM(WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT) AS ZUGESAGT"
                         " FROM WVO_VERTAG_KALENDER"
                         " INNER JOIN WVO_VERTRAG ON WVO_VERTRAG.ID = WVO_VERTAG_KALENDER.ID_WVO_VERTRAG"
                         " LEFT JOIN WVO_BEREITMELDUNG_KW ON WVO_BEREITMELDUNG_KW.ID_VERTRAEGE = WVO_VERTRAG.ID_VERTRAEGE"
                         " AND WVO_BEREITMELDUNG_KW.JAHR = WVO_VERTAG_KALENDER.JAHR"
                         " AND WVO_BEREITMELDUNG_KW.WOCHE = WVO_VERTAG_KALENDER.WOCHE"
                         " WHERE WVO_VERTRAG.ID_VERTRAEGE = "}
        .number(contract())
        .fixed(" GROUP BY WVO_VERTAG_KALENDER.JAHR,WVO_VERTAG_KALENDER.WOCHE"
               " ORDER BY WVO_VERTAG_KALENDER.JAHR,WVO_VERTAG_KALENDER.WOCHE")
        .text();
}

std::string ProvisionStatements::deletion(std::int64_t report) {
    return StatementText{"DELETE FROM WVO_BEREITMELDUNG_KW WHERE ID = "}.number(report).text();
}

std::string ProvisionStatements::creation(std::int64_t helper) const {
    return StatementText{"SET NOCOUNT ON\r\n"
                         "INSERT INTO WVO_BEREITMELDUNG_KW (ID_PERSONAL_WH,ID_VERTRAEGE,JAHR,WOCHE,DATUM_GENERATE) VALUES ("}
        .number(helper)
        .fixed(",")
        .number(contract())
        .fixed(",")
        .number(of_.year)
        .fixed(",")
        .number(of_.week)
        .fixed(",GETDATE())\r\n"
               "SELECT IDENT_CURRENT('WVO_BEREITMELDUNG_KW')")
        .text();
}

std::string ProvisionStatements::change(parts::KeyedRow& row, base::DateTime now) {
    const std::string announced = loads(row.field(reportField::announced));
    const std::string confirmed = loads(row.field(reportField::confirmed));
    const std::string carrier = row.text(reportField::carrier);
    return StatementText{"UPDATE WVO_BEREITMELDUNG_KW SET WVO_BEREITMELDUNG_KW.ZUEGE = "}
        .fixed(announced)
        .fixed(",WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT = ")
        .fixed(confirmed)
        .fixed(",WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT = ")
        .quotedAsItStands(carrier)
        .fixed(",DATUM_CHANGE_ZENT = '")
        .insideLiteral(centreStamp(now))
        .fixed("' WHERE ID = ")
        .number(row.integer(reportField::report))
        .fixed(" AND   ( ISNULL(WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT,0) <> ")
        .fixed(confirmed)
        .fixed(" OR ISNULL(WVO_BEREITMELDUNG_KW.ZUEGE,0) <> ")
        .fixed(announced)
        .fixed(" OR ISNULL(WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT,'') <> ")
        .quotedAsItStands(carrier)
        .fixed(")")
        .text();
}

// clang-format on

} // namespace tellurix::logistics
