#include "bench/support/GeneratedFile.h"

#include <spawn.h>
#include <sys/wait.h>

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

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
    std::array<std::string, 10> words{program,       file_.string(),
                                      "--contracts", std::to_string(sizes.contracts),
                                      "--lines",     std::to_string(sizes.lines),
                                      "--logs",      std::to_string(sizes.logs),
                                      "--booked",    std::to_string(sizes.booked)};
    std::array<char*, 11> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
        arguments[i] = words[i].data();
    pid_t process = -1;
    const int error = ::posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ);
    if (error != 0)
        throw std::system_error{error, std::generic_category(), std::string{"starting "} + program};
    int status = 0;
    ::waitpid(process, &status, 0);
    if (status != 0) throw std::runtime_error{"no database was generated in " + folder_.string()};
}

} // namespace tellurix::bench
