#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "com/component/system/system_services.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>

namespace tellurix::windows {

namespace {

struct CloseFile {
    void operator()(void* file) const { CloseHandle(file); }
};
using OpenFile = std::unique_ptr<void, CloseFile>;

[[noreturn]] void failLast(const std::wstring& path) {
    const HRESULT code = HRESULT_FROM_WIN32(GetLastError());
    throw AutomationError(code, narrow(path) + ": " + describeCode(code));
}

std::wstring nativePath(const std::string& text) {
    std::wstring path = widen(text);
    std::ranges::replace(path, L'/', L'\\');
    return path;
}

OpenFile openForReading(const std::wstring& path) {
    void* file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) failLast(path);
    return OpenFile(file);
}

using Block = std::array<char, 1 << 16>;

DWORD readBlock(const OpenFile& file, Block& block, const std::wstring& path) {
    DWORD length = 0;
    if (!ReadFile(file.get(), block.data(), static_cast<DWORD>(block.size()), &length, nullptr))
        failLast(path);
    return length;
}

bool haveSameContent(const std::wstring& one, const std::wstring& other) {
    const OpenFile first = openForReading(one);
    const OpenFile second = openForReading(other);
    const auto a = std::make_unique<Block>();
    const auto b = std::make_unique<Block>();
    for (;;) {
        const DWORD length = readBlock(first, *a, one);
        if (readBlock(second, *b, other) != length) return false;
        if (!std::equal(a->begin(), a->begin() + length, b->begin())) return false;
        if (length == 0) return true;
    }
}

class WindowsFiles final : public host::DocumentFiles {
public:
    Present find(const std::string& source, const std::string& folder) override {
        const std::wstring target = targetOf(source, folder);
        const std::wstring from = nativePath(source);
        openForReading(from);
        if (GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES) {
            if (GetLastError() == ERROR_FILE_NOT_FOUND) return Present::no;
            failLast(target);
        }
        return haveSameContent(from, target) ? Present::same : Present::different;
    }

    void copy(const std::string& source, const std::string& folder) override {
        const std::wstring target = targetOf(source, folder);
        const std::wstring directory = folderOf(folder);
        std::array<wchar_t, MAX_PATH + 1> beside{};
        // A name that no other program has: the system makes the empty file.
        if (GetTempFileNameW(directory.c_str(), L"tlx", 0, beside.data()) == 0) failLast(directory);
        if (!CopyFileW(nativePath(source).c_str(), beside.data(), FALSE) ||
            !MoveFileExW(beside.data(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            const DWORD reason = GetLastError();
            // A copy of a file that is read only would stay.
            SetFileAttributesW(beside.data(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(beside.data());
            SetLastError(reason);
            failLast(target);
        }
    }

private:
    /// With a separator at its end.
    static std::wstring folderOf(const std::string& folder) {
        std::wstring path = nativePath(folder);
        if (!path.ends_with(L'\\')) path += L'\\';
        return path;
    }
    std::wstring targetOf(const std::string& source, const std::string& folder) {
        return folderOf(folder) + widen(fileName(source));
    }
};

} // namespace

std::unique_ptr<host::DocumentFiles> systemFiles() {
    return std::make_unique<WindowsFiles>();
}

} // namespace tellurix::windows
