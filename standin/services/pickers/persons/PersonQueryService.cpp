#include "standin/services/pickers/persons/PersonQueryService.h"

#include "module/base/number_format.h"
#include "standin/services/pickers/persons/person_conditions.h"

#include <stdexcept>

namespace tellurix::standin {

std::string PersonQueryService::build(const host::TlxVar& /*session*/, const std::string& table,
                                      const std::string& number, int accessLevel, const std::string& filter) {
    const bool clientsOnly = filter == "PERSONAL_VALID_MANDANTEN";
    if (!clientsOnly && filter != "PERSONAL_VALID") {
        throw std::invalid_argument("Die Personensuche kennt den Filter „" + filter + "“ nicht.");
    }
    // A number typed with its thousands apart is the same number.
    const auto typed = base::parseNumber(number, locale_);
    base::StatementText query{"SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM "};
    query.identifier(table)
        .fixed(" WHERE NUMMER = ")
        .number(typed ? typed->toString() : number)
        .fixed(" AND");
    allowedPersons(query, accessLevel);
    if (clientsOnly) query.fixed(" AND MANDANT = 1");
    return query.text();
}

std::string PersonQueryService::restriction(const host::TlxVar& session, const std::string& table) {
    return restrictionOfLevel(table, session.accessLevel);
}

} // namespace tellurix::standin
