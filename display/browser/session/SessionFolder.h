#pragma once

#include <filesystem>

namespace tellurix::browser {

/// A folder among the system's temporary ones that nobody else uses or can look into. It goes with this
/// object; of a process that was killed it stays, and is found by the lock that nobody holds any more.
class SessionFolder {
public:
    /// @throws std::system_error when it cannot be made
    SessionFolder();
    ~SessionFolder();
    SessionFolder(const SessionFolder&) = delete;
    SessionFolder& operator=(const SessionFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// Takes away what killed processes of the same user have left behind. What cannot be taken away stays.
    static void removeAbandoned();

private:
    std::filesystem::path path_;
    int lock_ = -1; ///< the open lock file
};

} // namespace tellurix::browser
