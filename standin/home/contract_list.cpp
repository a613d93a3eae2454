#include "standin/home/contract_list.h"

#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/host/contract_type.h"
#include "standin/services/pickers/persons/person_conditions.h"
#include "standin/services/texts/words.h"

namespace tellurix::standin {

using base::StatementText;

namespace {

/// In the form that no login language of a server reads another way.
std::string sqlDate(base::Date day) {
    return base::formatDate(day, "yyyymmdd", base::Locale::german());
}

} // namespace

std::string contractsQuery(const ContractFilter& filter) {
    // clang-format off
    StatementText query{"SELECT VERTRAEGE.ID_VERTRAG,VERTRAEGE.VERTRAG_NAME,VERTRAEGE.VER_TYPE,"
        "PERSONAL.KURZBEZEICHNUNG,VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,"
        "ISNULL(VERTRAEGE.ABGESCHLOSSEN,0) AS ABGESCHLOSSEN,"
        "(SELECT COUNT(*) FROM VERTRAG_PREISE WHERE VERTRAG_PREISE.ID_VERTRAG = VERTRAEGE.ID_VERTRAG) AS PREISE,"
        "(SELECT COUNT(*) FROM VERTRAG_MENGEN WHERE VERTRAG_MENGEN.ID_VERTRAG = VERTRAEGE.ID_VERTRAG) AS MENGEN"
        " FROM VERTRAEGE"
        " LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = VERTRAEGE.ID_PERSONAL AND PERSONAL.ID_PERSONAL > 0"
        " WHERE VERTRAEGE.ID_VERTRAG > 0"};
    // clang-format on
    if (filter.closed != ContractFilter::Closed::all) {
        query.fixed(" AND ISNULL(VERTRAEGE.ABGESCHLOSSEN,0) = ")
            .fixed(filter.closed == ContractFilter::Closed::closed ? "1" : "0");
    }
    if (!filter.type.empty()) query.fixed(" AND VERTRAEGE.VER_TYPE = ").quoted(filter.type);
    for (const std::string& word : wordsOf(filter.search)) {
        const std::string pattern = patternAnywhere(word);
        query.fixed(" AND (VERTRAEGE.VERTRAG_NAME LIKE ")
            .fixed(pattern)
            .fixed(" OR PERSONAL.KURZBEZEICHNUNG LIKE ")
            .fixed(pattern)
            .fixed(")");
    }
    if (filter.from || filter.to)
        query.fixed(" AND (VERTRAEGE.LIEFERVON IS NOT NULL OR VERTRAEGE.LIEFERBIS IS NOT NULL)");
    if (filter.from) {
        query.fixed(" AND (VERTRAEGE.LIEFERBIS IS NULL OR VERTRAEGE.LIEFERBIS >= ")
            .quoted(sqlDate(*filter.from))
            .fixed(")");
    }
    if (filter.to) {
        // The day after it, so that a time on the last day still belongs to that day.
        const base::Date after{std::chrono::local_days{*filter.to} + std::chrono::days{1}};
        query.fixed(" AND (VERTRAEGE.LIEFERVON IS NULL OR VERTRAEGE.LIEFERVON < ")
            .quoted(sqlDate(after))
            .fixed(")");
    }
    return query.fixed(" ORDER BY VERTRAEGE.VERTRAG_NAME").text();
}

bool contractExists(base::Connection& connection, std::int32_t id) {
    StatementText query{"SELECT ID_VERTRAG FROM VERTRAEGE WHERE ID_VERTRAG = "};
    return !connection.open(query.number(id).text())->atEnd();
}

bool contractExists(base::Connection& connection, const std::string& name) {
    StatementText query{"SELECT ID_VERTRAG FROM VERTRAEGE WHERE VERTRAG_NAME = "};
    return !connection.open(query.quoted(name).text())->atEnd();
}

std::int32_t createContract(base::Connection& connection, const std::string& name, const std::string& type) {
    StatementText insert{"INSERT INTO VERTRAEGE (VERTRAG_NAME,VER_TYPE,ID_FAKTART) VALUES ("};
    // The contract kinds of the provision reports count the types from 1.
    insert.quoted(name).fixed(",").quoted(type).fixed(",").number(host::contractTypeNumber(type) + 1);
    connection.execute(insert.fixed(")").text());
    // By name, because another session may have created its own contract in between.
    StatementText key{"SELECT MAX(ID_VERTRAG) AS ID_VERTRAG FROM VERTRAEGE WHERE VERTRAG_NAME = "};
    return static_cast<std::int32_t>(connection.open(key.quoted(name).text())->integer("ID_VERTRAG"));
}

} // namespace tellurix::standin
