#include "tests/standin/workbench/Program.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <stdexcept>
#include <thread>

namespace tellurix::tests {

Program::Program(const TestFolder& folder, const std::vector<std::string>& arguments,
                 const std::string& input)
    : folder_(folder) {
    static int number = 0;
    name_ = "program-" + std::to_string(++number);
    folder.write(name_ + ".in", input);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    const std::string in = folder / (name_ + ".in");
    const std::string out = folder / (name_ + ".out");
    const std::string err = folder / (name_ + ".err");
    posix_spawn_file_actions_addopen(&files, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&files, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);

    std::vector<std::string> words{TELLURIX_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    std::string home = "HOME=" + folder / "home";
    char* environment[] = {home.data(), nullptr};
    const int error = posix_spawn(&process_, TELLURIX_PROGRAM, &files, nullptr, pointers.data(), environment);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0) throw std::runtime_error{"cannot start " TELLURIX_PROGRAM};
}

Program::~Program() {
    if (process_ < 0) return;
    signal(SIGKILL);
    wait();
}

void Program::signal(int number) const {
    // To a process that is gone nothing is sent: the number that stands for none means every process there
    // is.
    if (process_ > 0) ::kill(process_, number);
}

int Program::wait() {
    if (process_ < 0) return status_;
    int state = 0;
    ::waitpid(process_, &state, 0);
    process_ = -1;
    status_ = WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    return status_;
}

std::string Program::firstLine() {
    for (;;) {
        const bool ended = process_ < 0;
        const std::string text = output();
        if (const auto end = text.find('\n'); end != std::string::npos) return text.substr(0, end);
        if (ended) return {};
        int state = 0;
        if (::waitpid(process_, &state, WNOHANG) == process_) {
            process_ = -1;
            status_ = WIFEXITED(state) ? WEXITSTATUS(state) : -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{10});
    }
}

std::string Program::output() const {
    return folder_.read(name_ + ".out");
}

std::string Program::errors() const {
    return folder_.read(name_ + ".err");
}

} // namespace tellurix::tests
