#pragma once

#include "com/automation/Bstr.h"
#include "com/automation/Dispatch.h"
#include "com/session/HostsRecord.h"

#include <string>

namespace tellurix::windows {

/// One class of the host's library. Its object is created when it is first used.
class HostClass {
public:
    explicit HostClass(const char* name) : name_(name) {}

    /// @param session whose user is told when it fails: with the class and the operation
    /// @throws AutomationError
    Variant call(const host::TlxVar& session, const wchar_t* operation, Dispatch::Arguments arguments);

private:
    const char* name_;
    Dispatch object_;
};

/// A text that a called operation reads and writes.
class TextInOut {
public:
    explicit TextInOut(const std::string& text = {}) : text_(Bstr(text).detach()) {}
    ~TextInOut() { SysFreeString(text_); }
    TextInOut(const TextInOut&) = delete;
    TextInOut& operator=(const TextInOut&) = delete;

    Variant argument() { return Variant::reference(text_); }
    std::string value() const { return textOf(text_); }

private:
    BSTR text_;
};

} // namespace tellurix::windows
