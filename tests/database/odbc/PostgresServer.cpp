#include "tests/database/odbc/PostgresServer.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>
#include <vector>

namespace tellurix::tests {

namespace {

namespace fs = std::filesystem;

/// Debian keeps the programs of each version in a folder of its own.
std::string program(const std::string& name) {
    for (const auto& version : fs::directory_iterator{"/usr/lib/postgresql"})
        if (fs::exists(version.path() / "bin" / name)) return (version.path() / "bin" / name).string();
    throw std::runtime_error{"the tests need the package postgresql: there is no " + name};
}

/// The server refuses to run as root; its package has a user for it.
const passwd* owner() {
    return ::getuid() == 0 ? ::getpwnam("postgres") : nullptr;
}

pid_t started(const TestFolder& folder, std::vector<std::string> words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const std::string log = folder / "log";
    const passwd* user = owner();
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error{"cannot start " + words.front()};
    if (child > 0) return child;
    if (user != nullptr && (::initgroups(user->pw_name, user->pw_gid) != 0 || ::setgid(user->pw_gid) != 0 ||
                            ::setuid(user->pw_uid) != 0))
        ::_exit(1);
    ::prctl(PR_SET_PDEATHSIG, SIGQUIT);
    const int file = ::open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    ::dup2(file, 1);
    ::dup2(file, 2);
    ::chdir("/");
    ::execv(pointers[0], pointers.data());
    ::_exit(1);
}

int ended(pid_t process) {
    int state = 0;
    ::waitpid(process, &state, 0);
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

std::uint16_t freePort() {
    const int file = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    const bool bound = ::bind(file, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
                       ::getsockname(file, reinterpret_cast<sockaddr*>(&address), &size) == 0;
    ::close(file);
    if (!bound) throw std::runtime_error{"no port is free"};
    return ntohs(address.sin_port);
}

} // namespace

PostgresServer::PostgresServer() : port_(freePort()) {
    folder_.write("password", password);
    if (const passwd* user = owner()) {
        for (const std::string& path : {folder_ / "", folder_ / "password"})
            if (::chown(path.c_str(), user->pw_uid, user->pw_gid) != 0)
                throw std::runtime_error{"cannot give the folder of the server to its user"};
    }
    const std::vector<std::string> making{program("initdb"),      "--pgdata=" + folder_ / "data",
                                          "--username=tellurix",  "--pwfile=" + folder_ / "password",
                                          "--auth=scram-sha-256", "--encoding=UTF8",
                                          "--locale=C.UTF-8",     "--no-sync"};
    if (ended(started(folder_, making)) != 0)
        throw std::runtime_error{"initdb failed: " + folder_.read("log")};
    start();
}

PostgresServer::~PostgresServer() {
    if (process_ < 0) return;
    ::kill(process_, SIGQUIT);
    ended(process_);
}

PostgresServer& PostgresServer::shared() {
    static PostgresServer server;
    return server;
}

void PostgresServer::start() {
    process_ = started(folder_, {program("postgres"), "-D", folder_ / "data", "-p", std::to_string(port_),
                                 "-h", "127.0.0.1", "-k", folder_ / "", "-c", "fsync=off", "-c",
                                 "max_connections=80", "-c", "shared_buffers=16MB"});
    using namespace std::chrono_literals;
    for (int tries = 0;; ++tries) {
        try {
            connect();
            return;
        } catch (const base::DatabaseError&) {
            constexpr int mostTries = 300;
            const bool hasEnded = ::waitpid(process_, nullptr, WNOHANG) == process_;
            if (hasEnded) process_ = -1;
            if (tries == mostTries || hasEnded)
                throw std::runtime_error{"the server does not start: " + folder_.read("log")};
            std::this_thread::sleep_for(50ms);
        }
    }
}

void PostgresServer::kill() {
    if (process_ < 0) throw std::logic_error{"the server does not run"};
    // The server's own processes notice that it is gone, and go too.
    ::kill(process_, SIGQUIT);
    ended(process_);
    process_ = -1;
}

odbc::Source PostgresServer::source(std::uint16_t port) const {
    return odbc::Source::parse(
        "DRIVER={PostgreSQL Unicode};SERVER=127.0.0.1;PORT=" + std::to_string(port == 0 ? port_ : port) +
        ";DATABASE=postgres;UID=tellurix;PWD={geheim;}}42};BoolsAsChar=0;UseServerSidePrepare=1;"
        "UseDeclareFetch=1;Fetch=100;MaxVarcharSize=4000");
}

odbc::SessionRules PostgresServer::rules(const std::string& schema) {
    return {
        .options = {"SET datestyle = 'ISO, DMY'", "SET lock_timeout = 300", "SET search_path = " + schema},
        .dayQuestion = "SELECT CAST('31.12.2024' AS timestamp)",
        .schemaQuestion = "SELECT CAST(current_schema() AS text)",
        .loginQuestion = "SELECT current_user",
        .remedy = "ALTER ROLE {} SET datestyle = 'ISO, DMY'"};
}

std::unique_ptr<base::Connection> PostgresServer::connect(const std::string& schema) const {
    return odbc::Database{source(), {.rules = rules(schema), .answerTime = std::chrono::seconds{0}}}
        .connect();
}

} // namespace tellurix::tests
