#include "module/logistics/plan/CalendarStatements.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/logistics/day_table.h"

#include <cstdlib>

namespace tellurix::logistics {

using base::IsoWeek;
using base::StatementText;

namespace {

StatementText& expectingPlan(StatementText& statement, std::int64_t key, const base::Value& expected) {
    statement.fixed(" WHERE ID = ").number(key);
    const auto number = base::numberIn(expected);
    return number ? statement.fixed(" AND PLANMENGE = ").number(number->toString())
                  : statement.fixed(" AND PLANMENGE IS NULL");
}

} // namespace

// clang-format off

std::string CalendarStatements::list(int sortColumn) const {
    StatementText batch{dayTable};
    batch.fixed(
        "SELECT WVO_VERTAG_KALENDER.ID,\r\n"
        "CAST(WVO_VERTAG_KALENDER.JAHR AS nvarchar(4))+'/'+RIGHT('0'+CAST(WVO_VERTAG_KALENDER.WOCHE AS nvarchar(2)),2) AS JAHRWOCHE,\r\n"
        "(select convert(nvarchar(10),min(dtTable.DayDate),104) from @temp dtTable where dtTable.ISO_KW = WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR) \r\n"
        "+ '-' + (select convert(nvarchar(10),max(dtTable.DayDate),104) from @temp dtTable where dtTable.ISO_KW = WVO_VERTAG_KALENDER.WOCHE AND  dtTable.YEAR_KW = WVO_VERTAG_KALENDER.JAHR)  AS DATUM,\r\n"
        "WVO_VERTAG_KALENDER.JAHR,\r\n"
        "WVO_VERTAG_KALENDER.WOCHE,\r\n"
        "WVO_VERTAG_KALENDER.PLANMENGE,\r\n"
        "A.PLANMENGEALL\r\n"
        " FROM (SELECT ")
        .number(record_)
        .fixed(" AS ID) KOPF\r\n"
        " LEFT JOIN WVO_VERTAG_KALENDER ON WVO_VERTAG_KALENDER.ID_WVO_VERTRAG = KOPF.ID\r\n"
        " LEFT JOIN (SELECT SUM(PLANMENGE) AS PLANMENGEALL FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = ")
        .number(record_)
        .fixed(") A  ON 1=1\r\n"
        " ORDER BY ").number(std::abs(sortColumn));
    if (sortColumn < 0) batch.fixed(" DESC");
    return batch.text();
}

std::string CalendarStatements::findGenerated(const IsoWeek& week) const {
    const WeekDigits digits = digitsOf(week);
    StatementText query{"SELECT WVO_VERTAG_KALENDER.ID FROM WVO_VERTAG_KALENDER INNER JOIN WVO_VERTRAG ON WVO_VERTAG_KALENDER.ID_WVO_VERTRAG = WVO_VERTRAG.ID "
        " WHERE WVO_VERTRAG.ID_VERTRAEGE = "};
    return query.number(contract_)
        .fixed(" AND ISNULL(WVO_VERTAG_KALENDER.JAHR,0) = ").fixed(digits.year)
        .fixed(" AND ISNULL(WVO_VERTAG_KALENDER.WOCHE,0) = ").fixed(digits.week)
        .text();
}

std::string CalendarStatements::insertGenerated(const IsoWeek& week) const {
    const WeekDigits digits = digitsOf(week);
    StatementText statement{"INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG,JAHR,WOCHE,PLANMENGE)"
        " SELECT WVO_VERTRAG.ID,"};
    return statement.fixed(digits.year).fixed(",").fixed(digits.week).fixed(",NULL"
        " FROM WVO_VERTRAG "
        " WHERE WVO_VERTRAG.ID_VERTRAEGE = ").number(contract_).text();
}

std::string CalendarStatements::plans() const {
    StatementText query{"SELECT ID,PLANMENGE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = "};
    return query.number(record_).text();
}

std::string CalendarStatements::replacePlan(std::int64_t key, const base::Value& expected,
                                            const base::Value& plan) const {
    StatementText statement{"UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = "};
    const auto number = base::numberIn(plan);
    number ? statement.number(number->toString()) : statement.null();
    return expectingPlan(statement, key, expected).text();
}

std::string CalendarStatements::removePlanned(std::int64_t key, const base::Value& expected) const {
    StatementText statement{"DELETE FROM WVO_VERTAG_KALENDER"};
    return expectingPlan(statement, key, expected).text();
}

std::string CalendarStatements::spread(std::size_t weeks) const {
    StatementText statement{"UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = (SELECT ROUND(SUM(MENGE)/"};
    return statement.number(weeks)
        .fixed(",2) FROM VERTRAG_MENGEN WHERE ID_VERTRAG = ").number(contract_)
        .fixed(")"
        " WHERE ID_WVO_VERTRAG = ").number(record_)
        .text();
}

std::string CalendarStatements::findOther(const std::string& year, const std::string& week,
                                          std::int64_t key) const {
    StatementText query{"SELECT ID FROM  WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = "};
    return query.number(record_)
        .fixed(" AND JAHR = ").number(year)
        .fixed(" AND WOCHE = ").number(week)
        .fixed(" AND ID<>").number(key)
        .text();
}

std::string CalendarStatements::insert() const {
    StatementText statement{"INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG) VALUES ("};
    return statement.number(record_).fixed(")").text();
}

std::string CalendarStatements::newest() const {
    StatementText query{"SELECT MAX(ID) FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = "};
    return query.number(record_).text();
}

std::string CalendarStatements::week(std::int64_t key) const {
    return StatementText{"SELECT ID,JAHR,WOCHE,PLANMENGE FROM WVO_VERTAG_KALENDER WHERE ID = "}.number(key).text();
}

std::string CalendarStatements::update(const std::string& year, const std::string& week,
                                       const std::string& plan, std::int64_t key) const {
    StatementText statement{"UPDATE WVO_VERTAG_KALENDER SET "
        "JAHR = "};
    return statement.number(year)
        .fixed(",WOCHE = ").number(week)
        .fixed(",PLANMENGE = ").number(plan)
        .fixed(" WHERE ID = ").number(key)
        .text();
}

std::string CalendarStatements::remove(std::int64_t key) const {
    return StatementText{"DELETE FROM WVO_VERTAG_KALENDER WHERE ID = "}.number(key).text();
}

std::string CalendarStatements::contractQuantities() const {
    StatementText query{"SELECT WARENEINHEIT.EINHEIT,SUM(VERTRAG_MENGEN.MENGE) AS MENGE FROM VERTRAG_MENGEN"
        " LEFT JOIN WARENEINHEIT ON WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT"
        " WHERE VERTRAG_MENGEN.ID_VERTRAG = "};
    return query.number(contract_).fixed(" GROUP BY WARENEINHEIT.EINHEIT").text();
}

// clang-format on

} // namespace tellurix::logistics
