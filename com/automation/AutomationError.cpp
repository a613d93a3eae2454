#include "com/automation/AutomationError.h"

#include "com/automation/Bstr.h"
#include "com/automation/ComPtr.h"
#include "com/automation/wide.h"

#include <array>
#include <cstdio>
#include <new>

namespace tellurix::windows {

namespace {

/// The number as it is written everywhere, for example "0x80020006".
std::string written(HRESULT code) {
    std::array<char, 11> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%08lX", static_cast<unsigned long>(code));
    return digits.data();
}

} // namespace

std::string describeCode(HRESULT code) {
    std::array<wchar_t, 512> text{};
    const DWORD size = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
        static_cast<DWORD>(code), 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    std::string words = narrow({text.data(), size});
    while (!words.empty() && words.back() == ' ')
        words.pop_back();
    return words.empty() ? written(code) : words + " (" + written(code) + ")";
}

void check(HRESULT result, const std::string& action) {
    if (FAILED(result)) throw AutomationError(result, action + ": " + describeCode(result));
}

Failure currentFailure(const std::string& source) noexcept {
    Failure failure;
    try {
        failure.source = source;
        try {
            throw;
        } catch (const AutomationError& error) {
            // A caller would take any other one for success.
            failure.code = FAILED(error.code()) ? error.code() : E_FAIL;
            failure.description = error.what();
            if (!error.source().empty()) failure.source = error.source();
        } catch (const CallEnded& ended) {
            failure.code = ended.code;
            failure.description = ended.description;
        } catch (const std::bad_alloc&) {
            failure.code = E_OUTOFMEMORY;
        } catch (const std::exception& error) {
            failure.code = E_FAIL;
            failure.description = error.what();
        }
    } catch (...) {
        // No exception of ours, or no memory to describe it: the code has to do.
        return failure;
    }
    return failure;
}

HRESULT report(const Failure& failure) noexcept {
    try {
        ComPtr<ICreateErrorInfo> information;
        if (CreateErrorInfo(information.put()) == S_OK) {
            information->SetSource(Bstr(failure.source).get());
            information->SetDescription(Bstr(failure.description).get());
            SetErrorInfo(0, information.as<IErrorInfo>().get());
        }
    } catch (const std::bad_alloc&) {
        SetErrorInfo(0, nullptr);
    }
    return failure.code;
}

} // namespace tellurix::windows
