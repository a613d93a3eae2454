#include "services/PersonQueryService.h"

#include "common/number_format.h"
#include "services/person_conditions.h"

#include <stdexcept>

namespace tellurix::workbench {

std::string PersonQueryService::build(const host::TlxVar& /*session*/, const std::string& table,
                                      const std::string& number, int accessLevel, const std::string& filter) {
    const bool clientsOnly = filter == "PERSONAL_VALID_MANDANTEN";
    if (!clientsOnly && filter != "PERSONAL_VALID") {
        throw std::invalid_argument("Die Personensuche kennt den Filter „" + filter + "“ nicht.");
    }
    // A number typed with its thousands apart is the same number.
    const auto typed = common::parseNumber(number, locale_);
    common::StatementText query{"SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM "};
    query.identifier(table)
        .fixed(" WHERE NUMMER = ")
        .number(typed ? typed->toString() : number)
        .fixed(" AND");
    allowedPersons(query, accessLevel);
    if (clientsOnly) query.fixed(" AND MANDANT = 1");
    return query.text();
}

} // namespace tellurix::workbench
