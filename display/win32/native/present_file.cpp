#include "display/win32/native/present_file.h"

#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"

#include <shellapi.h>

#include <array>

namespace tellurix::windows {

namespace {

[[noreturn]] void failLast(const std::string& name) {
    const HRESULT code = HRESULT_FROM_WIN32(GetLastError());
    throw AutomationError(code, name + ": " + describeCode(code));
}

/// A folder of its own, so that the file keeps its name.
std::wstring newFolder(const std::string& name) {
    std::array<wchar_t, MAX_PATH + 1> temporary{};
    if (GetTempPathW(static_cast<DWORD>(temporary.size()), temporary.data()) == 0) failLast(name);
    std::array<wchar_t, MAX_PATH + 1> place{};
    if (GetTempFileNameW(temporary.data(), L"tlx", 0, place.data()) == 0) failLast(name);
    // The name is nobody else's; a folder takes the place of the empty file.
    if (!DeleteFileW(place.data()) || !CreateDirectoryW(place.data(), nullptr)) failLast(name);
    return place.data();
}

void write(const std::wstring& path, const std::string& name, const std::string& content) {
    HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) failLast(name);
    DWORD written = 0;
    const bool done =
        WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) &&
        written == content.size();
    const DWORD reason = GetLastError();
    CloseHandle(file);
    if (done) return;
    DeleteFileW(path.c_str());
    SetLastError(reason);
    failLast(name);
}

} // namespace

void openWithItsProgram(HWND owner, const std::string& name, const std::string& content) {
    const std::wstring path = newFolder(name) + L"\\" + widen(name);
    write(path, name, content);
    SHELLEXECUTEINFOW open{};
    open.cbSize = sizeof open;
    open.fMask = SEE_MASK_FLAG_NO_UI;
    open.hwnd = owner;
    open.lpVerb = L"open";
    open.lpFile = path.c_str();
    open.nShow = SW_SHOWNORMAL;
    if (!ShellExecuteExW(&open)) failLast(narrow(path));
}

} // namespace tellurix::windows
