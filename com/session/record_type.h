#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/Variant.h"
#include "com/automation/com.h"

#include <cstddef>

namespace tellurix::windows {

/// What kind of record a host's session record is. Its layout is the host's; its fields have names.
class RecordType {
public:
    explicit RecordType(ComPtr<IRecordInfo> description);

    /// That of the registered library of the host, whatever its ids are: of a record that came without
    /// a description, through an early-bound call.
    /// @throws AutomationError when no such library is registered
    static RecordType registered();

    IRecordInfo& description() const { return *description_; }
    bool isSessionRecord() const;

    std::size_t size() const { return size_; }
    /// Makes `to`, which holds nothing, a copy of the record `from`.
    /// @throws AutomationError
    void copy(const void* from, void* to) const;
    /// Frees what a record holds.
    void clear(void* record) const;
    /// The value of a field, Empty when there is none of that name.
    Variant field(void* record, const wchar_t* name) const;
    /// The connection that the record starts with.
    ComPtr<IDispatch> connection(void* record) const;

private:
    ComPtr<IRecordInfo> description_;
    std::size_t size_ = 0;
    /// The record as our own type library has it: then nothing has to be asked of the description, which
    /// not everywhere can do all of this.
    bool ours_ = false;
};

} // namespace tellurix::windows
