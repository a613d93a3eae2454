#include "standin/services/pickers/persons/PersonPicker.h"

#include "module/parts/fields/PersonBox.h"
#include "standin/services/pickers/persons/person_conditions.h"
#include "standin/services/texts/words.h"

#include <algorithm>

namespace tellurix::standin {

using base::StatementText;

namespace {

std::string searchQuery(const std::string& modeColumn, int accessLevel, const std::string& typed) {
    StatementText query{
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG,NAME,VORNAME,STRASSE,PLZ,ORT FROM PERSONAL WHERE"};
    allowedPersons(query, accessLevel);
    if (!modeColumn.empty()) query.fixed(" AND ").identifier(modeColumn).fixed(" = 1");
    for (const std::string& word : wordsOf(typed)) {
        query.fixed(" AND (NUMMER LIKE ").fixed(patternAtStart(word));
        for (const char* column : {"KURZBEZEICHNUNG", "NAME", "VORNAME", "ORT"})
            query.fixed(" OR ").fixed(column).fixed(" LIKE ").fixed(patternAnywhere(word));
        query.fixed(")");
    }
    return query.fixed(" ORDER BY KURZBEZEICHNUNG,ID_PERSONAL").text();
}

bool contains(const std::vector<parts::KeyedRow>& persons, std::int32_t person) {
    return std::ranges::find(persons, person, &parts::KeyedRow::key) != persons.end();
}

} // namespace

std::int32_t PersonPicker::choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                                  std::int16_t standardClient, std::int32_t currentPerson,
                                  host::Boolean16& confirmed) {
    const std::string modeColumn = columnOfMode(mode);
    const auto searched = [&](const std::string& typed) {
        return search(session, modeColumn, accessLevel, typed);
    };
    const bool clients = modeColumn == "MANDANT";
    const std::int32_t start = currentPerson > 0 || !clients ? currentPerson : standardClient;

    // A person beyond the first ones is reached by number.
    std::string typed;
    F_PersonPicker::Found found = searched("");
    if (start > 0 && !contains(found.rows, start)) {
        const std::string number = parts::personNumber(*session.connection, start).value_or("");
        F_PersonPicker::Found byNumber = searched(number);
        if (contains(byNumber.rows, start)) {
            typed = number;
            found = std::move(byNumber);
        }
    }
    const std::string title = localizer_.named("person.title", session);
    F_PersonPicker form{localizer_.namedOr("person.title." + mode, session, title), searched, typed,
                        std::move(found), start};
    dialogs_.show(session, form);
    const std::int32_t chosen = form.chosen().value_or(cancelled);
    if (chosen > 0) confirmed = host::Boolean16::True;
    return chosen;
}

F_PersonPicker::Found PersonPicker::search(const host::TlxVar& session, const std::string& modeColumn,
                                           int accessLevel, const std::string& typed) const {
    auto read = parts::KeyedRows::read(*session.connection, searchQuery(modeColumn, accessLevel, typed),
                                       "ID_PERSONAL", shownAtMost);
    std::string count = filled(localizer_.named(read.more ? "person.more" : "person.count", session),
                               {std::to_string(read.rows.size())});
    return {.rows = std::move(read.rows), .count = std::move(count)};
}

} // namespace tellurix::standin
