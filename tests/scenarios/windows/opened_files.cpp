#include "tests/scenarios/windows/opened_files.h"

#include <windows.h>

#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tellurix::tests {

namespace {

constexpr const wchar_t* kind = L"Tellurix.TestSpreadsheet";

void setDefault(const std::wstring& key, const std::wstring& value) {
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(), bytes) !=
        ERROR_SUCCESS)
        throw std::runtime_error{"cannot register a program for files"};
}

/// Beside this one.
std::filesystem::path spreadsheetProgram() {
    std::array<wchar_t, MAX_PATH> own{};
    GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size()));
    return std::filesystem::path{own.data()}.replace_filename("spreadsheet_program.exe");
}

} // namespace

void registerSpreadsheetProgram() {
    setDefault(L".xlsx", kind);
    setDefault(std::wstring{kind} + L"\\shell\\open\\command",
               L"\"" + spreadsheetProgram().wstring() + L"\" \"%1\"");
    std::filesystem::remove(notesOfOpenedFiles());
}

std::string lastOpenedFile() {
    std::ifstream file{notesOfOpenedFiles(), std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::filesystem::path notesOfOpenedFiles() {
    return std::filesystem::temp_directory_path() / "tellurix-opened-files.txt";
}

} // namespace tellurix::tests
