#pragma once

#include <windows.h>

#include <string>
#include <utility>

namespace tellurix::windows {

/// The program or DLL that this code is in; its resources and window classes are there.
HINSTANCE moduleInstance();

/// A window class that exists as long as this code is loaded: a DLL takes its classes along when it
/// goes, or the next one would meet a class whose procedure is gone.
class WindowClass {
public:
    /// @param style CS_… flags
    /// @param background a system colour (COLOR_…), or -1 for a class that paints all of itself
    WindowClass(const wchar_t* name, WNDPROC procedure, UINT style, int background);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    const wchar_t* name() const { return name_; }

private:
    const wchar_t* name_;
};

/// Gives a window the neutral name by which test drivers and assistive tools find it: the property
/// "Tellurix.Name" holds a global atom of it. Goes with the window if `forgetName` is called then.
void setName(HWND window, const std::string& name);
void forgetName(HWND window);

std::wstring windowText(HWND window);

/// While it lives, windows and dialogs are made with visual styles.
class VisualStyles {
public:
    VisualStyles();
    ~VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;

private:
    ULONG_PTR cookie_ = 0;
};

/// While it lives, windows are measured in the resolution of the main screen, which is what all sizes of
/// ours are in; the host's thread may have asked for that of each screen.
class SystemResolution {
public:
    SystemResolution();
    ~SystemResolution();
    SystemResolution(const SystemResolution&) = delete;
    SystemResolution& operator=(const SystemResolution&) = delete;

private:
    HANDLE before_;
};

/// While it lives, windows and dialogs are made as ours are, whatever the host's own look like.
struct SystemLook {
    VisualStyles styles;
    SystemResolution resolution;
};

/// A pen, brush, font or bitmap that goes with its owner.
template <typename Handle>
class GdiObject {
public:
    explicit GdiObject(Handle handle) : handle_(handle) {}
    ~GdiObject() { DeleteObject(handle_); }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    operator Handle() const { return handle_; }
    void replace(Handle handle) { DeleteObject(std::exchange(handle_, handle)); }

private:
    Handle handle_;
};

/// An object selected into a device context for a while.
class Selected {
public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    ~Selected() { SelectObject(dc_, before_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC dc_;
    HGDIOBJ before_;
};

inline int widthOf(const RECT& rect) {
    return rect.right - rect.left;
}
inline int heightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}

} // namespace tellurix::windows
