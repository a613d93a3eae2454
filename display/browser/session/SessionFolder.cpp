#include "display/browser/session/SessionFolder.h"

#include "display/browser/network/secrets.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace tellurix::browser {

namespace fs = std::filesystem;

namespace {

constexpr const char* beginning = "tellurix-session-";

fs::path lockIn(const fs::path& folder) {
    return folder / ".lock";
}

/// Whether a path still leads to the open file.
bool leadsTo(const fs::path& path, int file) {
    struct stat named {};
    struct stat opened {};
    return ::lstat(path.c_str(), &named) == 0 && ::fstat(file, &opened) == 0 && named.st_ino == opened.st_ino;
}

bool isOwnFolder(const fs::path& path) {
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::geteuid();
}

/// With the reason of the last call.
[[noreturn]] void fail(const fs::path& path) {
    throw std::system_error{errno, std::generic_category(), path.string()};
}

/// The open lock file of a new folder, locked. Of a folder that cannot have one nothing stays.
int lockNew(const fs::path& folder) {
    const int file = ::open(lockIn(folder).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0 && ::flock(file, LOCK_EX) == 0) return file;
    const int reason = errno;
    if (file >= 0) ::close(file);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    errno = reason;
    fail(folder);
}

} // namespace

SessionFolder::SessionFolder() {
    // Somebody who cleans up may take a new folder away before it is locked: then there is another one.
    do {
        if (lock_ >= 0) ::close(lock_);
        path_ = fs::temp_directory_path() / (beginning + randomKey());
        if (::mkdir(path_.c_str(), S_IRWXU) != 0) fail(path_);
        lock_ = lockNew(path_);
    } while (!leadsTo(lockIn(path_), lock_));
}

SessionFolder::~SessionFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    ::close(lock_);
}

void SessionFolder::removeAbandoned() {
    std::error_code failed;
    std::vector<fs::path> found;
    for (fs::directory_iterator entry{fs::temp_directory_path(failed), failed}, end; !failed && entry != end;
         entry.increment(failed)) {
        const bool named = entry->path().filename().string().starts_with(beginning);
        if (named && isOwnFolder(entry->path())) found.push_back(entry->path());
    }
    for (const fs::path& folder : found) {
        // By the lock, and not by the number of a process: machines that count processes of their own may
        // share the temporary folder.
        const int lock = ::open(lockIn(folder).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
        if (lock < 0) continue;
        if (::flock(lock, LOCK_EX | LOCK_NB) == 0) fs::remove_all(folder, failed);
        ::close(lock);
    }
}

} // namespace tellurix::browser
