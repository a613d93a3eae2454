#include "standin/services/pickers/lists/KeyedListsService.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"

#include <stdexcept>

namespace tellurix::standin {

using base::StatementText;

namespace {

constexpr const char* contractList = "VERTRAG_GRID";
constexpr const char* contractByName = "VERTRAG_VALID";
constexpr const char* typeList = "TYPEOFVERTRAG_GRID";
constexpr const char* typeByCode = "TYPEOFVERTRAG_VALID";

[[noreturn]] void failUnknown(const std::string& list) {
    throw std::invalid_argument{"Es gibt keine Liste „" + list + "“."};
}

void limit(StatementText& query, const host::KeyedLists::Limits& limits) {
    query.fixed(" ID_VERTRAG <> ").number(limits.contract);
    if (!limits.type.empty()) query.fixed(" AND VER_TYPE = ").quoted(limits.type);
}

} // namespace

std::string KeyedListsService::choose(const host::TlxVar& session, const std::string& list,
                                      const std::string& title, const Limits& limits,
                                      const std::string& current) {
    const bool ofContracts = list == contractList;
    if (!ofContracts && list != typeList) failUnknown(list);
    F_ListPicker form{
        title,
        ofContracts ? contracts(session, limits) : types(session),
        {.all = localizer_.named("list.count", session), .some = localizer_.named("list.more", session)},
        current};
    dialogs_.show(session, form, list);
    if (!form.chosen()) return {};
    return ofContracts ? form.chosen()->back() : form.chosen()->front();
}

F_ListPicker::List KeyedListsService::contracts(const host::TlxVar& session, const Limits& limits) const {
    F_ListPicker::List list;
    for (const char* column : {"VERTRAG_NAME", "INVDATE", "KURZBEZEICHNUNG", "ID_VERTRAG"})
        list.headings.push_back(localizer_.named(std::string{"column."} + column, session));
    StatementText query{"SELECT VERTRAG_NAME,INVDATE,KURZBEZEICHNUNG,ID_VERTRAG FROM VERTRAEGE"
                        " LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = VERTRAEGE.ID_PERSONAL WHERE"};
    limit(query, limits);
    query.fixed(" ORDER BY VERTRAG_NAME,ID_VERTRAG");
    for (auto row = session.connection->open(query.text()); !row->atEnd(); row->moveNext()) {
        list.entries.push_back({row->text("VERTRAG_NAME"), base::dateText(row->field("INVDATE")),
                                row->text("KURZBEZEICHNUNG"), row->text("ID_VERTRAG")});
    }
    return list;
}

F_ListPicker::List KeyedListsService::types(const host::TlxVar& session) const {
    F_ListPicker::List list{
        .headings = {localizer_.named("column.VER_TYPE", session), localizer_.named("column.LONG", session)},
        .entries = {}};
    auto row = session.connection->open("SELECT DISTINCT VER_TYPE FROM VERTRAEGE ORDER BY VER_TYPE");
    for (; !row->atEnd(); row->moveNext()) {
        const std::string code = row->text("VER_TYPE");
        list.entries.push_back({code, localizer_.namedOr("type." + code, session, "")});
    }
    return list;
}

std::vector<std::string> KeyedListsService::find(const host::TlxVar& session, const std::string& list,
                                                 const std::string& text, const Limits& limits) {
    StatementText query;
    if (list == contractByName) {
        query.fixed("SELECT ID_VERTRAG FROM VERTRAEGE WHERE VERTRAG_NAME = ").quoted(text).fixed(" AND");
        limit(query, limits);
        query.fixed(" ORDER BY ID_VERTRAG");
    } else if (list == typeByCode) {
        query.fixed("SELECT DISTINCT VER_TYPE FROM VERTRAEGE WHERE VER_TYPE = ").quoted(text);
    } else {
        failUnknown(list);
    }
    std::vector<std::string> keys;
    for (auto row = session.connection->open(query.text()); !row->atEnd(); row->moveNext())
        keys.push_back(row->text(0));
    return keys;
}

std::string KeyedListsService::typeOf(const host::TlxVar& session, std::int32_t contract) {
    StatementText query{"SELECT VER_TYPE FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto row = session.connection->open(query.number(contract).text());
    return row->atEnd() ? std::string{} : row->text("VER_TYPE");
}

} // namespace tellurix::standin
