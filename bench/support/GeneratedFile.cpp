#include "bench/support/GeneratedFile.h"

#include <spawn.h>
#include <sys/wait.h>

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

extern char** environ;

namespace tellurix::bench {

namespace {

constexpr const char* program = TELLURIX_GENERATE_DATABASE;

} // namespace

GeneratedFile::GeneratedFile(const Sizes& sizes) {
    std::string pattern = std::filesystem::temp_directory_path() / "tellurix-bench-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::system_error{errno, std::generic_category(), "making " + pattern};
    folder_ = pattern;
    file_ = folder_ / "generated.db";
    try {
        generate(sizes);
    } catch (...) {
        std::filesystem::remove_all(folder_);
        throw;
    }
}

GeneratedFile::~GeneratedFile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void GeneratedFile::generate(const Sizes& sizes) const {
    std::vector<std::string> words{program, file_.string()};
    for (const auto& [option, number] : std::initializer_list<std::pair<const char*, std::int64_t>>{
             {"--contracts", sizes.contracts},
             {"--lines", sizes.lines},
             {"--logs", sizes.logs},
             {"--booked", sizes.booked},
             {"--logistics", sizes.logistics.contracts},
             {"--helpers", sizes.logistics.helpers},
             {"--persons", sizes.logistics.persons},
             {"--weeks", sizes.logistics.weeks},
             {"--invoiced", sizes.logistics.invoiced},
             {"--notes", sizes.logistics.notes}}) {
        words.emplace_back(option);
        words.push_back(std::to_string(number));
    }
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = -1;
    const int error = ::posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ);
    if (error != 0)
        throw std::system_error{error, std::generic_category(), std::string{"starting "} + program};
    int status = 0;
    ::waitpid(process, &status, 0);
    if (status != 0) throw std::runtime_error{"no database was generated in " + folder_.string()};
}

} // namespace tellurix::bench
