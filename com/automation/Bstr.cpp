#include "com/automation/Bstr.h"

#include "com/automation/wide.h"

#include <new>

namespace tellurix::windows {

Bstr::Bstr(std::string_view text) {
    const std::wstring wide = widen(text);
    text_ = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (text_ == nullptr) throw std::bad_alloc();
}

std::string textOf(BSTR text) {
    return text == nullptr ? std::string() : narrow({text, SysStringLen(text)});
}

} // namespace tellurix::windows
