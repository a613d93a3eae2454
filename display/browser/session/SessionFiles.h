#pragma once

#include "display/browser/session/SessionFolder.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

namespace tellurix::browser {

/// The files of one session, in a folder of its own that goes with the session: those that its user sends
/// from the page, and those that are made for the user. To be called from any thread.
class SessionFiles {
public:
    /// Of a file that the user sends.
    static constexpr std::uint64_t mostBytes = 32UL * 1024 * 1024;

    SessionFiles() = default;
    SessionFiles(const SessionFiles&) = delete;
    SessionFiles& operator=(const SessionFiles&) = delete;

    /// A file on its way from the page. What has not been finished is forgotten with it.
    class Upload {
    public:
        Upload(SessionFiles& files, int id, std::filesystem::path path)
            : files_(files), id_(id), path_(std::move(path)) {}
        ~Upload();
        Upload(const Upload&) = delete;
        Upload& operator=(const Upload&) = delete;

        /// Where it is to be written.
        const std::filesystem::path& path() const { return path_; }
        /// All of it has been written.
        void finish();

    private:
        SessionFiles& files_;
        const int id_;
        const std::filesystem::path path_;
        bool finished_ = false;
    };

    /// The session waits for one file under this number, and no longer under another; 0 for none.
    void await(int id);
    /// The page begins to send. Null when nothing is awaited under that number, or is on its way.
    std::unique_ptr<Upload> begin(int id);
    /// What has been sent, under the user's name for it, which may be anything and is cleaned. The
    /// file stays as long as the session.
    /// @return nothing while it is not there
    std::optional<std::string> take(int id, const std::string& name);

    struct Offered {
        std::string name;
        std::string content;
    };
    /// Keeps a file for the user to fetch. The last few are kept.
    /// @return its number
    int offer(const std::string& name, const std::string& content);
    /// What the page fetches. Nothing when it is not there, or not any more.
    std::optional<Offered> fetch(int id);
    /// The offered ones that have not been fetched yet, by their numbers.
    std::map<int, std::string> waiting() const;

private:
    const std::filesystem::path& folder();

    mutable std::mutex mutex_;
    std::optional<SessionFolder> folder_; ///< made for the first file
    int awaited_ = 0;
    bool sending_ = false;
    bool sent_ = false;
    std::map<int, std::string> offered_;
    std::set<int> fetched_;
    int lastOffer_ = 0;
};

/// A name that a file can have on any system: without a path and without characters that a system
/// does not allow, and not too long.
std::string cleanedName(const std::string& name);

} // namespace tellurix::browser
