#include "tests/scenarios/windows/opened_files.h"

#include "com/automation/wide.h"

#include <windows.h>

#include <shellapi.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tellurix::tests {

namespace {

constexpr const wchar_t* option = L"--opened";
constexpr const wchar_t* kind = L"Tellurix.OpenedFile";

std::filesystem::path noteBook() {
    return std::filesystem::temp_directory_path() / "tellurix-opened-files.txt";
}

void setDefault(const std::wstring& key, const std::wstring& value) {
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CURRENT_USER, (L"Software\\Classes\\" + key).c_str(), nullptr, REG_SZ,
                        value.c_str(), bytes) != ERROR_SUCCESS)
        throw std::runtime_error{"cannot register a program for files"};
}

} // namespace

void openFilesWithThisProgram() {
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    setDefault(L".xlsx", kind);
    setDefault(std::wstring{kind} + L"\\shell\\open\\command",
               std::wstring{L"\""} + program.data() + L"\" " + option + L" \"%1\"");
    std::filesystem::remove(noteBook());
}

bool noteOpenedFile() {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    const bool opened = count == 3 && std::wstring{words[1]} == option;
    const std::filesystem::path file = opened ? words[2] : L"";
    LocalFree(words);
    if (opened && std::filesystem::file_size(file) > 0)
        std::ofstream{noteBook(), std::ios::binary} << windows::narrow(file.filename().wstring());
    return opened;
}

std::string lastOpenedFile() {
    std::ifstream file{noteBook(), std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

} // namespace tellurix::tests
