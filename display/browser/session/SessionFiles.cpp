#include "display/browser/session/SessionFiles.h"

#include "module/base/text.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tellurix::browser {

namespace fs = std::filesystem;

namespace {

/// Of the files that were made: as many as a user overlooks.
constexpr std::size_t mostOffered = 16;
/// A file system takes 255 bytes.
constexpr std::size_t longestName = 200;

fs::path awaitedIn(const fs::path& folder, int id) {
    return folder / ("in-" + std::to_string(id));
}

fs::path offeredIn(const fs::path& folder, int id) {
    return folder / ("out-" + std::to_string(id));
}

} // namespace

std::string cleanedName(const std::string& name) {
    std::u32string cleaned;
    for (const char32_t character : base::decodeUtf8(name.substr(name.find_last_of("/\\") + 1))) {
        const bool allowed = character >= U' ' && character != 0x7f &&
                             std::u32string_view{U"<>:\"|?*"}.find(character) == std::u32string_view::npos;
        cleaned += allowed ? character : U'_';
    }
    // An ending tells what the file is; a long name loses from its middle.
    std::string text = base::encodeUtf8(cleaned);
    while (text.size() > longestName) {
        const auto dot = cleaned.rfind(U'.');
        const bool hasEnding = dot != std::u32string::npos && cleaned.size() - dot <= 10 && dot > 0;
        const std::size_t last = hasEnding ? dot - 1 : cleaned.size() - 1;
        cleaned.erase(last, 1);
        text = base::encodeUtf8(cleaned);
    }
    while (text.ends_with('.') || text.ends_with(' '))
        text.pop_back();
    return text.empty() ? "Datei" : text;
}

const fs::path& SessionFiles::folder() {
    if (!folder_) folder_.emplace();
    return folder_->path();
}

void SessionFiles::await(int id) {
    const std::lock_guard lock{mutex_};
    awaited_ = id;
    sending_ = false;
    sent_ = false;
}

std::unique_ptr<SessionFiles::Upload> SessionFiles::begin(int id) {
    const std::lock_guard lock{mutex_};
    if (id == 0 || id != awaited_ || sending_) return nullptr;
    const fs::path place = awaitedIn(folder(), id);
    fs::create_directory(place);
    sending_ = true;
    sent_ = false;
    return std::make_unique<Upload>(*this, id, place / ".part");
}

void SessionFiles::Upload::finish() {
    const std::lock_guard lock{files_.mutex_};
    finished_ = true;
    if (files_.awaited_ != id_) return;
    files_.sending_ = false;
    files_.sent_ = true;
}

SessionFiles::Upload::~Upload() {
    if (finished_) return;
    const std::lock_guard lock{files_.mutex_};
    if (files_.awaited_ == id_) files_.sending_ = false;
    std::error_code ignored;
    fs::remove(path_, ignored);
}

std::optional<std::string> SessionFiles::take(int id, const std::string& name) {
    const std::lock_guard lock{mutex_};
    if (id == 0 || id != awaited_ || !sent_) return std::nullopt;
    const fs::path place = awaitedIn(folder(), id);
    fs::path named = place / cleanedName(name);
    fs::rename(place / ".part", named);
    awaited_ = 0;
    return named.string();
}

int SessionFiles::offer(const std::string& name, const std::string& content) {
    const std::lock_guard lock{mutex_};
    const int id = lastOffer_ + 1;
    const fs::path place = offeredIn(folder(), id);
    std::ofstream file{place, std::ios::binary};
    file << content;
    file.close();
    if (!file) {
        const std::error_code reason{errno, std::generic_category()};
        std::error_code ignored;
        fs::remove(place, ignored);
        throw std::runtime_error{name + ": " + reason.message()};
    }
    lastOffer_ = id;
    offered_.emplace(id, cleanedName(name));
    while (offered_.size() > mostOffered) {
        std::error_code ignored;
        fs::remove(offeredIn(folder(), offered_.begin()->first), ignored);
        fetched_.erase(offered_.begin()->first);
        offered_.erase(offered_.begin());
    }
    return id;
}

std::optional<SessionFiles::Offered> SessionFiles::fetch(int id) {
    const std::lock_guard lock{mutex_};
    const auto found = offered_.find(id);
    if (found == offered_.end()) return std::nullopt;
    std::ifstream file{offeredIn(folder(), id), std::ios::binary};
    if (!file) return std::nullopt;
    fetched_.insert(id);
    return Offered{found->second, {std::istreambuf_iterator<char>{file}, {}}};
}

std::map<int, std::string> SessionFiles::waiting() const {
    const std::lock_guard lock{mutex_};
    std::map<int, std::string> waiting;
    std::ranges::copy_if(offered_, std::inserter(waiting, waiting.end()),
                         [this](const auto& offered) { return !fetched_.contains(offered.first); });
    return waiting;
}

} // namespace tellurix::browser
