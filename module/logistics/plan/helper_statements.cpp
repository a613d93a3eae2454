#include "module/logistics/plan/helper_statements.h"

#include "module/base/StatementText.h"
#include "module/base/own_text.h"

#include <utility>

namespace tellurix::logistics::helpers {

using base::OwnText;
using base::StatementText;

// clang-format off

std::string list(std::int64_t record, std::string_view filter) {
    // One of the lines comments itself out.
    StatementText query{
        "SELECT WVO_VERTRAG_WALDHELFER.ID,\r\n"
        "--WVO_VERTRAG_WALDHELFER.ID_PERSONAL,\r\n"
        "PERSONAL.NUMMER AS PERSONALNUMMER,\r\n"
        "PERSONAL.KURZBEZEICHNUNG AS PERSONALKURZBEZEICHNUNG,\r\n"
        "(CASE WHEN ISNULL(B.CN,0)=0 THEN NULL ELSE A.PLANMENGEALL/B.CN END) AS MENGEGEPLANT,\r\n"
        "WVO_VERTRAG_WALDHELFER.MENGE_ANG,\r\n"
        " SUM(WVO2_SORTIMENTDATEN.PLANMENGE) AS MENGE_ANG_WB,\r\n"
        "WVO_VERTRAG_WALDHELFER.MENGE_BES,\r\n"
        "WVO_VERTRAG_WALDHELFER.DATUM_CHANGE,\r\n"
        "WVO_VERTRAG_WALDHELFER.DATUM_CHANGE_ZENT \r\n"
        " FROM (SELECT "};
    query.number(record)
        .fixed(" AS ID) KOPF\r\n"
               " LEFT JOIN WVO_VERTRAG_WALDHELFER ON WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = KOPF.ID");
    // The filter belongs to this join: the helpers are counted, and the plan divided, without it.
    if (!filter.empty()) {
        query.fixed(" AND WVO_VERTRAG_WALDHELFER.ID_PERSONAL IN (SELECT ID_PERSONAL FROM PERSONAL WHERE NUMMER LIKE '%")
            .insideLiteral(filter)
            .fixed("%' OR KURZBEZEICHNUNG LIKE '%")
            .insideLiteral(filter)
            .fixed("%')");
    }
    query.fixed("\r\n"
                " LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = WVO_VERTRAG_WALDHELFER.ID_PERSONAL\r\n"
                " LEFT JOIN WVO2_AUFTRAG_NOTIZ ON WVO2_AUFTRAG_NOTIZ.ID_PERSONAL_WH = WVO_VERTRAG_WALDHELFER.ID_PERSONAL \r\n"
                " LEFT JOIN WVO2_SORTIMENTDATEN ON WVO2_AUFTRAG_NOTIZ.ID = WVO2_SORTIMENTDATEN.ID_WVO2_AUFTRAG_NOTIZ AND ISNULL(WVO2_SORTIMENTDATEN.ID_WVO_VERTRAG,0) = KOPF.ID \r\n"
                " LEFT JOIN (SELECT SUM(PLANMENGE) AS PLANMENGEALL FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = ")
        .number(record)
        .fixed(") A  ON 1=1\r\n"
               " LEFT JOIN (SELECT COUNT(*) AS CN FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = ")
        .number(record)
        .fixed(") B ON 1=1\r\n"
               " GROUP BY WVO_VERTRAG_WALDHELFER.ID,PERSONAL.NUMMER,PERSONAL.KURZBEZEICHNUNG,"
               "(CASE WHEN ISNULL(B.CN,0)=0 THEN NULL ELSE A.PLANMENGEALL/B.CN END),"
               "WVO_VERTRAG_WALDHELFER.MENGE_ANG,WVO_VERTRAG_WALDHELFER.MENGE_BES,"
               "WVO_VERTRAG_WALDHELFER.DATUM_CHANGE,WVO_VERTRAG_WALDHELFER.DATUM_CHANGE_ZENT\r\n"
               " ORDER BY PERSONAL.NUMMER ");
    return query.text();
}

std::string presentQuantities(std::int64_t record) {
    return StatementText{"SELECT ID,MENGE_ANG,MENGE_BES FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = "}.number(record).text();
}

std::string present(std::int64_t record) {
    return StatementText{"SELECT ID_PERSONAL FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = "}.number(record).fixed(" GROUP BY ID_PERSONAL").text();
}

std::string rowsOf(std::int64_t record, std::int64_t person) {
    return StatementText{"SELECT ID FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = "}
        .number(record)
        .fixed(" AND ID_PERSONAL = ")
        .number(person)
        .text();
}

std::string eligible(std::string_view language, std::string_view restriction) {
    std::string query = "SELECT PERSONAL.ID_PERSONAL";
    for (const auto& [column, heading] : {std::pair{",PERSONAL.NUMMER AS [", OwnText::memberNumber},
                                          std::pair{",PERSONAL.KURZBEZEICHNUNG AS [", OwnText::memberName},
                                          std::pair{",PERSONAL.ANREDE AS [", OwnText::salutation},
                                          std::pair{",PERSONAL.NAME AS [", OwnText::familyName},
                                          std::pair{",PERSONAL.VORNAME AS [", OwnText::firstName},
                                          std::pair{",PERSONAL.PLZ AS [", OwnText::postCode},
                                          std::pair{",PERSONAL.ORT AS [", OwnText::town},
                                          std::pair{",PERSONAL.STRASSE AS [", OwnText::street}})
        query += column + base::ownText(heading, language) + "]";
    query += " FROM PERSONAL WHERE PERSONAL.ABRECH2 = 1 AND  ISNULL(PERSONAL.DISABLE,0) = 0";
    return query.append(restriction);
}

std::string add(std::int64_t record, std::int64_t person) {
    return StatementText{"INSERT INTO WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG,ID_PERSONAL,DATUM_CHANGE) VALUES ("}
        .number(record)
        .fixed(",")
        .number(person)
        .fixed(",NULL)")
        .text();
}

std::string removePerson(std::int64_t record, std::int64_t person) {
    return StatementText{"DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = "}
        .number(record)
        .fixed(" AND ID_PERSONAL = ")
        .number(person)
        .text();
}

std::string remove(std::int64_t key) {
    return StatementText{"DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID = "}.number(key).text();
}

std::string confirmAnnounced(std::int64_t record) {
    return StatementText{"UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_BES=MENGE_ANG WHERE ID_WVO_VERTRAG = "}.number(record).text();
}

std::string confirmOwners(std::int64_t record) {
    return StatementText{
        "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_BES = A.MENGE FROM WVO_VERTRAG_WALDHELFER "
        " LEFT JOIN ( SELECT SUM(WVO_VERTRAG_WB_KALENDER.MENGE) MENGE, WVO_VERTRAG_WH_WB.ID_WVO_VERTRAG_WALDHELFER, WVO_VERTRAG_WH_WB.ID_PERSONAL_WB "
        " FROM WVO_VERTRAG_WH_WB "
        " LEFT JOIN WVO_VERTRAG_WB_KALENDER ON WVO_VERTRAG_WB_KALENDER.ID_WVO_VERTRAG_WH_WB = WVO_VERTRAG_WH_WB.ID "
        " GROUP BY WVO_VERTRAG_WH_WB.ID_WVO_VERTRAG_WALDHELFER, WVO_VERTRAG_WH_WB.ID_PERSONAL_WB ) AS A "
        " ON A.ID_WVO_VERTRAG_WALDHELFER = WVO_VERTRAG_WALDHELFER.ID AND A.ID_PERSONAL_WB = WVO_VERTRAG_WALDHELFER.ID_PERSONAL "
        " Where ID_WVO_VERTRAG = "}
        .number(record)
        .text();
}

// clang-format on

} // namespace tellurix::logistics::helpers
