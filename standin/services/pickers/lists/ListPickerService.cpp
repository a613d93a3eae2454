#include "standin/services/pickers/lists/ListPickerService.h"

#include "module/base/date_format.h"
#include "module/base/field_text.h"
#include "module/base/text.h"
#include "standin/services/pickers/F_Calendar.h"
#include "standin/services/pickers/lists/F_ListPicker.h"
#include "standin/services/pickers/lists/named_lists.h"

namespace tellurix::standin {

namespace {

/// A field as an entry of the list shows it and as it is answered: dates as they are typed, all else
/// as the database writes it, because the answer goes back into a query.
std::string entryText(base::Recordset& rows, std::size_t field) {
    if (rows.fieldType(field) == base::FieldType::dateTime) return base::dateText(rows.field(field));
    return rows.text(field);
}

F_ListPicker::List listOf(base::Recordset& rows) {
    F_ListPicker::List list;
    for (std::size_t i = 0; i < rows.fieldCount(); ++i)
        list.headings.push_back(rows.fieldName(i));
    for (; !rows.atEnd(); rows.moveNext()) {
        ui::Grid::Row entry;
        for (std::size_t i = 0; i < rows.fieldCount(); ++i)
            entry.push_back(entryText(rows, i));
        list.entries.push_back(std::move(entry));
    }
    return list;
}

} // namespace

std::string ListPickerService::choose(const host::TlxVar& session, const std::string& query,
                                      const std::string& title, const std::string& current,
                                      const std::string& /*text*/) {
    return query == calendar ? chooseDay(session, title, current)
                             : chooseEntry(session, query, title, current);
}

std::string ListPickerService::chooseEntry(const host::TlxVar& session, const std::string& query,
                                           const std::string& title, const std::string& current) {
    F_ListPicker::List list = listOf(*session.connection->open(choicesOf(query).value_or(query)));
    // What the list shows is known by it in every language.
    const std::string column = list.headings.front();
    for (std::string& heading : list.headings)
        heading = headingOf(session, heading);
    F_ListPicker form{
        title,
        std::move(list),
        {.all = localizer_.named("list.count", session), .some = localizer_.named("list.more", session)},
        current};
    dialogs_.show(session, form, column);
    return form.chosen() ? form.chosen()->front() : current;
}

std::string ListPickerService::chooseDay(const host::TlxVar& session, const std::string& title,
                                         const std::string& current) {
    const base::Date today = clock_.today();
    F_Calendar form{title, base::parseDate(current).value_or(today), today, locale_};
    dialogs_.show(session, form);
    return form.chosen() ? base::dateText(*form.chosen()) : current;
}

std::string ListPickerService::headingOf(const host::TlxVar& session, const std::string& column) const {
    return localizer_.namedOr("column." + base::toUpper(column), session, column);
}

} // namespace tellurix::standin
