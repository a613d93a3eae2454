#include "com/component/services/dialog_services.h"

#include <algorithm>

namespace tellurix::windows {

std::int32_t LatePersonalPicker::choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                                        std::int16_t standardClient, std::int32_t currentPerson,
                                        host::Boolean16& confirmed) {
    SessionRecord record(session);
    VARIANT_BOOL confirmation = static_cast<VARIANT_BOOL>(confirmed);
    const Variant chosen = object_.call(session, L"Choose",
                                        {record.argument(), mode, accessLevel, standardClient, currentPerson,
                                         Variant::reference(confirmation)});
    confirmed = static_cast<host::Boolean16>(confirmation);
    return chosen.integer();
}

std::string LateListPicker::choose(const host::TlxVar& session, const std::string& query,
                                   const std::string& title, const std::string& current,
                                   const std::string& text) {
    SessionRecord record(session);
    return object_.call(session, L"Choose", {record.argument(), query, title, current, text}).text();
}

std::string LateKeyedLists::choose(const host::TlxVar& session, const std::string& list,
                                   const std::string& title, const Limits& limits,
                                   const std::string& current) {
    SessionRecord record(session);
    return object_
        .call(session, L"Choose", {record.argument(), list, title, limits.type, limits.contract, current})
        .text();
}

std::vector<std::string> LateKeyedLists::find(const host::TlxVar& session, const std::string& list,
                                              const std::string& text, const Limits& limits) {
    SessionRecord record(session);
    const std::string found =
        object_.call(session, L"Find", {record.argument(), list, text, limits.type, limits.contract}).text();
    std::vector<std::string> keys;
    for (std::size_t start = 0; start < found.size();) {
        const std::size_t end = std::min(found.find(',', start), found.size());
        keys.push_back(found.substr(start, end - start));
        start = end + 1;
    }
    return keys;
}

std::string LateKeyedLists::typeOf(const host::TlxVar& session, std::int32_t contract) {
    SessionRecord record(session);
    return object_.call(session, L"TypeOf", {record.argument(), contract}).text();
}

std::optional<std::string> LateSelectionDialog::select(const host::TlxVar& session, const std::string& key,
                                                       const std::string& upperType, const std::string& out1,
                                                       const std::string& out2) {
    SessionRecord record(session);
    const Variant selected =
        object_.call(session, L"Select", {record.argument(), key, upperType, out1, out2});
    if (selected.isEmpty()) return std::nullopt;
    return selected.text();
}

std::optional<std::string> LateSelectionDialog::edit(const host::TlxVar& session, const std::string& value,
                                                     const std::string& upperType, const std::string& out1,
                                                     const std::string& out2) {
    SessionRecord record(session);
    const Variant edited = object_.call(session, L"Edit", {record.argument(), value, upperType, out1, out2});
    if (edited.isEmpty()) return std::nullopt;
    return edited.text();
}

std::int32_t LateCatalogueSelection::choose(const host::TlxVar& session, const std::string& mode,
                                            const std::string& upperType, std::int32_t current) {
    SessionRecord record(session);
    return object_.call(session, L"Choose", {record.argument(), mode, upperType, current}).integer();
}

std::string LateLookupGridDialog::choose(const host::TlxVar& session, const std::string& layout,
                                         const std::string& title, const std::string& text,
                                         const std::string& mode, const std::string& current) {
    SessionRecord record(session);
    return object_.call(session, L"Choose", {record.argument(), layout, title, text, mode, current}).text();
}

} // namespace tellurix::windows
