#include "standin/services/pickers/PersonPicker.h"

#include "module/parts/PersonBox.h"
#include "standin/services/pickers/person_conditions.h"
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

std::string fullName(base::Recordset& person) {
    const std::string name = person.text("NAME");
    const std::string firstName = person.text("VORNAME");
    return firstName.empty() ? name : name + ", " + firstName;
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
    if (start > 0 && std::ranges::count(found.persons, start) == 0) {
        const std::string number = parts::personNumber(*session.connection, start).value_or("");
        F_PersonPicker::Found byNumber = searched(number);
        if (std::ranges::count(byNumber.persons, start) != 0) {
            typed = number;
            found = std::move(byNumber);
        }
    }
    const std::string title = localizer_.named("person.title", session);
    F_PersonPicker form{localizer_.namedOr("person.title." + mode, session, title), searched, typed,
                        std::move(found), start};
    localizer_.localize(session, form);
    display_.showModal(form);
    const std::int32_t chosen = form.chosen().value_or(cancelled);
    if (chosen > 0) confirmed = host::Boolean16::True;
    return chosen;
}

F_PersonPicker::Found PersonPicker::search(const host::TlxVar& session, const std::string& modeColumn,
                                           int accessLevel, const std::string& typed) const {
    F_PersonPicker::Found found;
    auto person = session.connection->open(searchQuery(modeColumn, accessLevel, typed));
    for (; !person->atEnd() && found.persons.size() < shownAtMost; person->moveNext()) {
        found.persons.push_back(static_cast<std::int32_t>(person->integer("ID_PERSONAL")));
        found.rows.push_back({person->text("NUMMER"), person->text("KURZBEZEICHNUNG"), fullName(*person),
                              person->text("STRASSE"), person->text("PLZ"), person->text("ORT")});
    }
    found.count = filled(localizer_.named(person->atEnd() ? "person.count" : "person.more", session),
                         {std::to_string(found.persons.size())});
    return found;
}

} // namespace tellurix::standin
