#pragma once

#include "com/automation/com.h"

#include <stdexcept>
#include <string>

namespace tellurix::windows {

/// A COM call that failed: what the called object said about it, or else what Windows says.
class AutomationError : public std::runtime_error {
public:
    /// @param description UTF-8, for people; @param source who reported it
    AutomationError(HRESULT code, const std::string& description, std::string source = {})
        : std::runtime_error(description), code_(code), source_(std::move(source)) {}

    HRESULT code() const { return code_; }
    const std::string& source() const { return source_; }

private:
    HRESULT code_;
    std::string source_;
};

/// Windows' own words for an error code, in one line and in UTF-8.
std::string describeCode(HRESULT code);

/// @param action what was being done, for the description, such as "Creating Tellurix_Loc.HostLocalizer"
/// @throws AutomationError when `result` is a failure, in Windows' words
void check(HRESULT result, const std::string& action);

/// Ends a call past all handlers of errors, on the way to its caller: no std::exception, so that nothing
/// is asked and nothing is written.
struct CallEnded {
    HRESULT code;
    const char* description; ///< UTF-8
};

/// The exception that is being handled, as a COM caller is told about it.
struct Failure {
    HRESULT code = E_UNEXPECTED;
    std::string source;
    std::string description;
};

/// To be called in a handler, `catch (...)`.
/// @param source our own name, used when the error does not say whose it is
Failure currentFailure(const std::string& source) noexcept;

/// Leaves the failure with the thread, where callers of an interface look for it.
/// @return its code
HRESULT report(const Failure& failure) noexcept;

/// The boundary of every COM method: runs `work`, and turns an exception into a code with error
/// information.
template <typename Work>
HRESULT guarded(const char* source, const Work& work) noexcept {
    try {
        work();
        return S_OK;
    } catch (...) {
        return report(currentFailure(source));
    }
}

} // namespace tellurix::windows
