#include "standin/services/pickers/lists/CatalogueSelectionService.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/whole_number.h"
#include "standin/services/pickers/lists/F_ListPicker.h"

#include <stdexcept>

namespace tellurix::standin {

namespace {

std::string articleQuery(const std::string& upperType, int accessLevel) {
    base::StatementText query{
        "SELECT ART_ID,BEZEICH1,EINHPREIS,SUBSET_DEF FROM WARENKATALOG WHERE ISNULL(DISABLE,0) = 0"};
    query.fixed(" AND ISNULL(VER_TYPE,").quoted(upperType).fixed(") = ").quoted(upperType);
    query.fixed(" AND ISNULL(ID_ACCESS_LEVELS,0) IN (0,").number(accessLevel).fixed(")");
    return query.fixed(" ORDER BY BEZEICH1,ART_ID").text();
}

} // namespace

std::int32_t CatalogueSelectionService::choose(const host::TlxVar& session, const std::string& mode,
                                               const std::string& upperType, std::int32_t current) {
    if (mode != "WAREN")
        throw std::invalid_argument{"Die Artikelauswahl kennt die Art „" + mode + "“ nicht."};
    F_ListPicker::List list;
    for (const char* column : {"ART_ID", "BEZEICH1", "EINHPREIS", "SUBSET_DEF"})
        list.headings.push_back(localizer_.namedOr(std::string{"column."} + column, session, column));
    auto article = session.connection->open(articleQuery(upperType, session.accessLevel));
    for (; !article->atEnd(); article->moveNext()) {
        list.entries.push_back({article->text("ART_ID"), article->text("BEZEICH1"),
                                base::numberText(article->field("EINHPREIS"), "##,##0.00", locale_),
                                article->text("SUBSET_DEF")});
    }
    F_ListPicker form{
        localizer_.named("catalogue.title", session),
        std::move(list),
        {.all = localizer_.named("list.count", session), .some = localizer_.named("list.more", session)},
        current > 0 ? std::to_string(current) : std::string{}};
    dialogs_.show(session, form, mode);
    return form.chosen() ? base::wholeNumber<std::int32_t>(form.chosen()->front()).value_or(0) : 0;
}

} // namespace tellurix::standin
