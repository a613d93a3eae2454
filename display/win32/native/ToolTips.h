#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace tellurix::windows {

/// The texts that are shown while the pointer rests over a control of a window. What shows them belongs to
/// that window and goes with it.
class ToolTips {
public:
    /// @param window the window that the controls stand in
    explicit ToolTips(HWND window) : window_(window) {}
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    /// An empty text takes the tip away.
    void set(HWND over, const std::string& text);

private:
    HWND window_;
    HWND tips_ = nullptr;
    std::map<HWND, std::string> texts_;
};

} // namespace tellurix::windows
