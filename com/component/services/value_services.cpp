#include "com/component/services/value_services.h"

namespace tellurix::windows {

std::string LateDataAccess::readValue(const host::TlxVar& session, const std::string& column,
                                      const std::string& table, const std::string& condition) {
    SessionRecord record(session);
    TextInOut value;
    object_.call(session, L"ReadValue", {record.argument(), column, table, condition, value.argument()});
    return value.value();
}

void LateModuleService::request(const host::TlxVar& session, const std::string& code, const std::string& type,
                                std::string& out1, std::string& out2) {
    SessionRecord record(session);
    TextInOut first(out1);
    TextInOut second(out2);
    object_.call(session, L"Request", {record.argument(), code, type, first.argument(), second.argument()});
    out1 = first.value();
    out2 = second.value();
}

std::string LatePersonQuery::build(const host::TlxVar& session, const std::string& table,
                                   const std::string& number, int accessLevel, const std::string& filter) {
    SessionRecord record(session);
    return object_.call(session, L"Build", {record.argument(), table, number, accessLevel, filter}).text();
}

std::string LateDateConverter::toSql(const std::string& text, const host::TlxVar& session) {
    SessionRecord record(session);
    return object_.call(session, L"ToSql", {text, record.argument()}).text();
}

std::string LateSettings::text(const host::TlxVar& session, const std::string& name) {
    SessionRecord record(session);
    return object_.call(session, L"Text", {record.argument(), name}).text();
}

int LateColumnWidth::of(const host::TlxVar& session, const std::string& table, const std::string& column) {
    SessionRecord record(session);
    return object_.call(session, L"Of", {record.argument(), table, column}).integer();
}

void LateColumnUpdate::set(const host::TlxVar& session, const std::string& table, const std::string& column,
                           const std::string& value, const std::string& condition) {
    SessionRecord record(session);
    object_.call(session, L"Set", {record.argument(), table, column, value, condition});
}

std::string LateSelectionTranslator::translate(const host::TlxVar& session, const std::string& kind,
                                               const std::string& sameKind, const std::string& value,
                                               const std::string& upperType, const std::string& formValue) {
    SessionRecord record(session);
    return object_
        .call(session, L"Translate", {record.argument(), kind, sameKind, value, upperType, formValue})
        .text();
}

} // namespace tellurix::windows
