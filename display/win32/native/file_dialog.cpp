#include "display/win32/native/file_dialog.h"

#include "com/automation/wide.h"
#include "display/win32/native/native.h"

#include <commdlg.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace tellurix::windows {

std::optional<std::string> chooseFile(HWND owner, const std::string& title, const std::string& filter) {
    const SystemLook look;
    const std::wstring caption = widen(title);
    // Windows separates its filters by zeros, with another one at the end.
    std::wstring filters = widen(filter) + L'\0';
    std::ranges::replace(filters, L'|', L'\0');
    std::vector<wchar_t> path(32768, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filters.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = caption.c_str();
    // Not the working folder of the host.
    dialog.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (GetOpenFileNameW(&dialog)) return narrow(path.data());
    if (const DWORD error = CommDlgExtendedError()) {
        throw std::runtime_error{"The file dialog of Windows failed (error " + std::to_string(error) + ")."};
    }
    return std::nullopt;
}

} // namespace tellurix::windows
