#pragma once

#include "com/automation/Variant.h"
#include "com/session/record_type.h"
#include "module/host/TlxVar.h"

#include <cstddef>
#include <memory>

namespace tellurix::windows {

/// The host's session record with its type: where the host has it, or a copy of our own.
class HostsRecord final : public host::HostRecord {
public:
    /// @param lent the host's; it outlives this
    HostsRecord(void* lent, RecordType type) : type_(std::move(type)), record_(lent) {}
    ~HostsRecord() override;

    std::unique_ptr<host::HostRecord> copy() const override { return copied(); }
    std::unique_ptr<HostsRecord> copied() const;

    /// The argument of a late-bound call. This outlives it.
    Variant argument() { return Variant::reference(record_, type_.description()); }
    ComPtr<IDispatch> connection() const { return type_.connection(record_); }
    /// Takes over what the record says now, the connection apart. What it has no field for stays.
    void readInto(host::TlxVar& session) const;

private:
    RecordType type_;
    std::unique_ptr<std::byte[]> own_; ///< of a copy
    void* record_;
};

/// The record of a session for one call of the host's library, which may change it: when the call is
/// over, the session's values are read anew.
class SessionRecord {
public:
    /// @param session one that came from a host
    explicit SessionRecord(const host::TlxVar& session);
    ~SessionRecord();
    SessionRecord(const SessionRecord&) = delete;
    SessionRecord& operator=(const SessionRecord&) = delete;

    Variant argument() { return record_.argument(); }

private:
    const host::TlxVar& session_;
    HostsRecord& record_;
};

} // namespace tellurix::windows
