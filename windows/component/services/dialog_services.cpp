#include "component/services/dialog_services.h"

namespace tellurix::windows {

std::int32_t LatePersonalPicker::choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                                        std::int16_t standardClient, std::int32_t currentPerson,
                                        host::Boolean16& confirmed) {
    SessionRecord record(session);
    VARIANT_BOOL confirmation = static_cast<VARIANT_BOOL>(confirmed);
    const Variant chosen = object_.call(L"Choose", {record.argument(), mode, accessLevel, standardClient,
                                                    currentPerson, Variant::reference(confirmation)});
    confirmed = static_cast<host::Boolean16>(confirmation);
    return chosen.integer();
}

std::string LateListPicker::choose(const host::TlxVar& session, const std::string& query,
                                   const std::string& title, const std::string& current) {
    SessionRecord record(session);
    return object_.call(L"Choose", {record.argument(), query, title, current}).text();
}

std::optional<std::string> LateSelectionDialog::select(const host::TlxVar& session, const std::string& key,
                                                       const std::string& upperType, const std::string& out1,
                                                       const std::string& out2) {
    SessionRecord record(session);
    const Variant selected = object_.call(L"Select", {record.argument(), key, upperType, out1, out2});
    if (selected.isEmpty()) return std::nullopt;
    return selected.text();
}

std::string LateLookupGridDialog::choose(const host::TlxVar& session, const std::string& settingKey,
                                         const std::string& title, const std::string& text,
                                         const std::string& mode, const std::string& current) {
    SessionRecord record(session);
    return object_.call(L"Choose", {record.argument(), settingKey, title, text, mode, current}).text();
}

} // namespace tellurix::windows
