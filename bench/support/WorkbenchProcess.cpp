#include "bench/support/WorkbenchProcess.h"

#include "bench/support/process_memory.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <system_error>

extern char** environ;

namespace tellurix::bench {

namespace {

constexpr const char* workbenchProgram = TELLURIX_WORKBENCH;

std::string firstLine(int file) {
    std::string line;
    for (char c = 0; ::read(file, &c, 1) == 1 && c != '\n';)
        line += c;
    return line;
}

} // namespace

WorkbenchProcess::WorkbenchProcess(const std::filesystem::path& database) {
    int output[2];
    if (::pipe(output) != 0) throw std::system_error{errno, std::generic_category(), "making a pipe"};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, output[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&files, output[0]);
    posix_spawn_file_actions_addclose(&files, output[1]);
    std::array<std::string, 5> words{workbenchProgram, "--database", database.string(), "--port", "0"};
    std::array<char*, 6> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
        arguments[i] = words[i].data();
    const int error = ::posix_spawn(&process_, workbenchProgram, &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    ::close(output[1]);
    if (error != 0) {
        ::close(output[0]);
        throw std::system_error{error, std::generic_category(), std::string{"starting "} + workbenchProgram};
    }
    readAddress(output[0]);
    ::close(output[0]);
}

WorkbenchProcess::~WorkbenchProcess() {
    ::kill(process_, SIGTERM);
    ::waitpid(process_, nullptr, 0);
}

/// The address is http://127.0.0.1:PORT/?key=KEY.
void WorkbenchProcess::readAddress(int output) {
    const std::string address = firstLine(output);
    const std::string_view beforePort = "http://127.0.0.1:";
    const std::string_view beforeKey = "/?key=";
    const std::size_t key = address.find(beforeKey);
    if (!address.starts_with(beforePort) || key == std::string::npos) {
        ::kill(process_, SIGTERM);
        ::waitpid(process_, nullptr, 0);
        throw std::runtime_error{"the workbench did not tell its address but: " + address};
    }
    std::from_chars(address.data() + beforePort.size(), address.data() + key, port_);
    key_ = address.substr(key + beforeKey.size());
}

std::int64_t WorkbenchProcess::memory() const {
    return residentKilobytes(std::to_string(process_));
}

double WorkbenchProcess::processorSeconds() const {
    std::ifstream file{"/proc/" + std::to_string(process_) + "/stat"};
    const std::string stat{std::istreambuf_iterator<char>{file}, {}};
    // The name in parentheses may hold blanks; user and system time are the 12th and 13th behind it.
    std::istringstream fields{stat.substr(stat.rfind(')') + 1)};
    std::string skipped;
    for (int i = 0; i < 11; ++i)
        fields >> skipped;
    double user = 0;
    double system = 0;
    fields >> user >> system;
    return (user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

} // namespace tellurix::bench
