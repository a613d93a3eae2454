// Stands for the program that opens spreadsheets: notes the name of a file that is not empty.
#include "com/automation/wide.h"
#include "tests/scenarios/windows/opened_files.h"

#include <windows.h>

#include <shellapi.h>

#include <fstream>

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::filesystem::path file = count == 2 ? words[1] : L"";
    LocalFree(words);
    if (file.empty() || std::filesystem::file_size(file) == 0) return 1;
    std::ofstream{tellurix::tests::notesOfOpenedFiles(), std::ios::binary}
        << tellurix::windows::narrow(file.filename().wstring());
    return 0;
}
