#include "display/win32/native/native.h"

#include "com/automation/wide.h"

#include <commctrl.h>

#include <stdexcept>

namespace tellurix::windows {

namespace {

constexpr const wchar_t* nameProperty = L"Tellurix.Name";

ATOM nameOf(HWND window) {
    return static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, nameProperty)));
}

/// The manifest of this module, where it is a DLL; a program's own is in force anyhow.
class StylesOfModule {
public:
    StylesOfModule() {
        ACTCTXW wanted{};
        wanted.cbSize = sizeof wanted;
        wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        wanted.hModule = moduleInstance();
        wanted.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
        handle_ = CreateActCtxW(&wanted);
    }
    ~StylesOfModule() {
        if (valid()) ReleaseActCtx(handle_);
    }
    StylesOfModule(const StylesOfModule&) = delete;
    StylesOfModule& operator=(const StylesOfModule&) = delete;
    bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE handle() const { return handle_; }

private:
    HANDLE handle_;
};

/// DPI_AWARENESS_CONTEXT_SYSTEM_AWARE
const HANDLE resolutionOfMainScreen = reinterpret_cast<HANDLE>(LONG_PTR{-2});

/// @return what was in force before; null where Windows has one resolution for a whole process
HANDLE setResolution(HANDLE context) {
    using Set = HANDLE(WINAPI*)(HANDLE);
    static const auto set = reinterpret_cast<Set>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetThreadDpiAwarenessContext")));
    return set == nullptr ? nullptr : set(context);
}

} // namespace

HINSTANCE moduleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&moduleInstance), &module);
    return module;
}

WindowClass::WindowClass(const wchar_t* name, WNDPROC procedure, UINT style, int background) : name_(name) {
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    made.style = style;
    made.lpfnWndProc = procedure;
    made.hInstance = moduleInstance();
    made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    made.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    if (background >= 0) made.hbrBackground = GetSysColorBrush(background);
    made.lpszClassName = name;
    if (RegisterClassExW(&made) == 0) throw std::runtime_error{"Windows refused a window class."};
}

WindowClass::~WindowClass() {
    UnregisterClassW(name_, moduleInstance());
}

void setName(HWND window, const std::string& name) {
    const ATOM atom = GlobalAddAtomW(widen(name).c_str());
    SetPropW(window, nameProperty, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom)));
}

void forgetName(HWND window) {
    if (const ATOM atom = nameOf(window)) GlobalDeleteAtom(atom);
    RemovePropW(window, nameProperty);
}

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

VisualStyles::VisualStyles() {
    static const StylesOfModule styles;
    if (styles.valid() && !ActivateActCtx(styles.handle(), &cookie_)) cookie_ = 0;
    static const bool classesMade = [] {
        INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_TAB_CLASSES | ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS |
                                                       ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
        return InitCommonControlsEx(&wanted) != FALSE;
    }();
    if (!classesMade) throw std::runtime_error{"Windows has no common controls."};
}

VisualStyles::~VisualStyles() {
    if (cookie_ != 0) DeactivateActCtx(0, cookie_);
}

SystemResolution::SystemResolution() : before_(setResolution(resolutionOfMainScreen)) {}

SystemResolution::~SystemResolution() {
    if (before_ != nullptr) setResolution(before_);
}

} // namespace tellurix::windows
