#include "standin/services/pickers/multiple/MultiSelectionService.h"

#include "standin/services/pickers/multiple/F_MultiSelection.h"

namespace tellurix::standin {

namespace {

bool isNumber(base::FieldType type) {
    return type != base::FieldType::text && type != base::FieldType::dateTime &&
           type != base::FieldType::flag;
}

/// The rows of the query, whose first column is the key and not shown.
F_MultiSelection::List read(base::Connection& connection, const std::string& query) {
    const auto row = connection.open(query);
    F_MultiSelection::List list;
    for (std::size_t i = 1; i < row->fieldCount(); ++i)
        list.columns.push_back({.caption = row->fieldName(i), .rightAligned = isNumber(row->fieldType(i))});
    for (; !row->atEnd(); row->moveNext()) {
        F_MultiSelection::Entry entry{.key = row->integer(row->fieldName(0)), .cells = {}};
        for (std::size_t i = 1; i < row->fieldCount(); ++i)
            entry.cells.push_back(row->text(i));
        list.entries.push_back(std::move(entry));
    }
    return list;
}

} // namespace

std::optional<std::vector<std::int64_t>>
MultiSelectionService::choose(const host::TlxVar& session, const std::string& list, const std::string& query,
                              const std::vector<std::int64_t>& marked) {
    const std::string title = localizer_.named("multi.title", session);
    F_MultiSelection form{dialogs_.display(),
                          localizer_.namedOr("multi.title." + list, session, title),
                          read(*session.connection, query),
                          {.count = localizer_.named("multi.count", session),
                           .none = localizer_.named("multi.none", session),
                           .notOffered = localizer_.named("multi.notOffered", session)},
                          marked};
    dialogs_.show(session, form, list);
    return form.chosen();
}

} // namespace tellurix::standin
