#include "com/session/HostsRecord.h"

#include "com/automation/AutomationError.h"

namespace tellurix::windows {

namespace {

HostsRecord& recordOf(const host::TlxVar& session) {
    if (session.record.get() == nullptr) throw AutomationError(E_UNEXPECTED, "The session has no record");
    return dynamic_cast<HostsRecord&>(*session.record.get());
}

} // namespace

HostsRecord::~HostsRecord() {
    if (own_) type_.clear(record_);
}

std::unique_ptr<HostsRecord> HostsRecord::copied() const {
    auto memory = std::make_unique<std::byte[]>(type_.size());
    type_.copy(record_, memory.get());
    auto copied = std::make_unique<HostsRecord>(memory.get(), type_);
    copied->own_ = std::move(memory);
    return copied;
}

void HostsRecord::readInto(host::TlxVar& session) const {
    const auto read = [&](const wchar_t* name, std::string& text) {
        if (const Variant value = type_.field(record_, name); !value.isEmpty()) text = value.text();
    };
    if (const Variant level = type_.field(record_, L"AccessLevel"); !level.isEmpty())
        session.accessLevel = level.integer();
    read(L"HomeCurrency", session.homeCurrency);
    read(L"Site", session.site);
    read(L"User", session.user);
    read(L"Language", session.language);
}

SessionRecord::SessionRecord(const host::TlxVar& session) : session_(session), record_(recordOf(session)) {}

SessionRecord::~SessionRecord() {
    try {
        // Screens hand their session on as one that they do not change themselves; none of them is const.
        record_.readInto(const_cast<host::TlxVar&>(session_));
    } catch (const std::exception&) {
        // What the library has put there is no such value: the session goes on with what it knew.
    }
}

} // namespace tellurix::windows
