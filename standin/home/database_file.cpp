#include "standin/home/database_file.h"

#include "database/embedded/Database.h"
#include "database/embedded/script.h"
#include "database_contents.h"
#include "module/base/text.h"

#include <unistd.h>

#ifndef _WIN32
#include <cerrno>
#include <csignal>
#endif
#include <charconv>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tellurix::standin {

namespace fs = std::filesystem;

namespace {

constexpr const char* workpieceMark = ".new-";

/// The files of a database in the making; they go with it unless it is put in its place.
class Workpiece {
public:
    explicit Workpiece(const fs::path& target) : file_(target) {
        // The process's number keeps two programs that start at once apart.
        file_ += workpieceMark + std::to_string(::getpid());
        remove();
    }
    ~Workpiece() { remove(); }
    Workpiece(const Workpiece&) = delete;
    Workpiece& operator=(const Workpiece&) = delete;

    const fs::path& file() const { return file_; }

    /// Puts the finished file in its place, unless another program has been quicker.
    void moveTo(const fs::path& target) {
        std::error_code error;
        fs::create_hard_link(file_, target, error);
        if (!error || error == std::errc::file_exists) return;
        // A file system without links: then it is renamed, which only two programs at the very same
        // moment could notice.
        if (!fs::exists(target)) fs::rename(file_, target);
    }

private:
    void remove() {
        for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
            std::error_code ignored;
            fs::remove(fs::path{file_} += suffix, ignored);
        }
    }

    fs::path file_;
};

void build(const fs::path& file, DatabaseContents contents, const base::Clock& clock) {
    const embedded::Database database{file, clock, {.create = true}};
    if (contents == DatabaseContents::sample) {
        const auto connection = database.connect();
        embedded::runScript(*connection, database_contents::file("schema.sql"));
        fillWithSample(*connection);
    }
    // Only the file gets a name; where the disk is full it must not be said to be whole.
    database.moveLogIntoFile();
}

/// Whether the process that made a workpiece still runs.
bool isAtWork(std::string_view processNumber) {
    int number = 0;
    std::from_chars(processNumber.data(), processNumber.data() + processNumber.size(), number);
#ifdef _WIN32
    return false; // what a program there has open nobody else can remove
#else
    return number > 0 && (::kill(number, 0) == 0 || errno == EPERM);
#endif
}

/// What programs left behind that were killed while they made this file.
void removeLeftovers(const fs::path& target) {
    const std::string start = target.filename().string() + workpieceMark;
    std::error_code error;
    for (fs::directory_iterator entry{fs::absolute(target).parent_path(), error}, end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code ignored;
        if (name.starts_with(start) && !isAtWork(std::string_view{name}.substr(start.size())))
            fs::remove(entry->path(), ignored);
    }
}

#ifdef _WIN32
/// Where programs keep the user's data.
fs::path dataFolder() {
    const wchar_t* folder = _wgetenv(L"LOCALAPPDATA");
    if (folder == nullptr)
        throw std::runtime_error{"LOCALAPPDATA is not set: name the database with --database"};
    return folder;
}
#else
/// Where programs keep the user's data.
fs::path dataFolder() {
    const auto variable = [](const char* name) {
        const char* value = std::getenv(name);
        return fs::path{value == nullptr ? "" : value};
    };
    // A relative folder there is to be ignored, so says the convention that the variable is from.
    if (fs::path folder = variable("XDG_DATA_HOME"); folder.is_absolute()) return folder;
    const fs::path home = variable("HOME");
    if (home.empty())
        throw std::runtime_error{"neither XDG_DATA_HOME nor HOME is set: name the database with --database"};
    return home / ".local" / "share";
}
#endif

} // namespace

bool isConnectionString(std::string_view database) {
    constexpr std::string_view driver = "DRIVER=";
    if (database.starts_with(serverMark)) return true;
    return base::toUpper(database.substr(0, driver.size())) == driver ||
           (database.find('=') != std::string_view::npos && database.find(';') != std::string_view::npos);
}

void fillWithSample(base::Connection& connection) {
    for (const char* script : {"sample_reference.sql", "sample_contracts.sql", "sample_logistics.sql"})
        embedded::runScript(connection, database_contents::file(script));
}

fs::path defaultDatabaseFile() {
    const fs::path folder = dataFolder() / "tellurix-workbench";
    fs::create_directories(folder);
    return folder / "tellurix.db";
}

void createWhenMissing(const fs::path& file, DatabaseContents contents, const base::Clock& clock) {
    removeLeftovers(file);
    if (fs::exists(file)) return;
    Workpiece workpiece{file};
    build(workpiece.file(), contents, clock);
    workpiece.moveTo(file);
}

} // namespace tellurix::standin
