#include "standin/services/files/DocumentFilesService.h"

#include "module/base/text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <system_error>

namespace tellurix::standin {

namespace {

namespace fs = std::filesystem;

/// A path in the words of the user, whose separators are Windows's as often as the system's own.
fs::path pathOf(const std::string& text) {
    const std::string path = base::replaceAll(text, "\\", "/");
    return fs::path{std::u8string{path.begin(), path.end()}};
}

[[noreturn]] void fail(const fs::path& path, const std::error_code& reason) {
    const std::u8string where = path.u8string();
    throw std::runtime_error{std::string{where.begin(), where.end()} + ": " + reason.message()};
}

/// Where the source goes. A folder that is missing is told by name, not by that of the file in it.
fs::path targetOf(const fs::path& source, const fs::path& folder) {
    std::error_code failure;
    if (!fs::is_directory(folder, failure)) {
        fail(folder, failure ? failure : std::make_error_code(std::errc::not_a_directory));
    }
    if (!fs::is_regular_file(source, failure)) {
        fail(source, failure ? failure : std::make_error_code(std::errc::is_a_directory));
    }
    return folder / source.filename();
}

bool haveSameContent(const fs::path& one, const fs::path& other) {
    std::error_code failure;
    const auto length = fs::file_size(one, failure);
    if (failure) fail(one, failure);
    if (length != fs::file_size(other, failure) && !failure) return false;
    std::ifstream first{one, std::ios::binary};
    std::ifstream second{other, std::ios::binary};
    if (!first) fail(one, std::make_error_code(std::errc::permission_denied));
    // One that cannot be read is not known to be the same.
    std::array<char, 1 << 16> a{};
    std::array<char, 1 << 16> b{};
    while (first && second) {
        first.read(a.data(), a.size());
        second.read(b.data(), b.size());
        if (first.gcount() != second.gcount()) return false;
        if (!std::equal(a.begin(), a.begin() + first.gcount(), b.begin())) return false;
    }
    return first.eof() && second.eof();
}

/// Short, whatever the name of the document, and no other program's.
fs::path besideName() {
    std::random_device random;
    return ".tellurix-" + std::to_string(random()) + std::to_string(random()) + ".tmp";
}

} // namespace

host::DocumentFiles::Present DocumentFilesService::find(const std::string& source,
                                                        const std::string& folder) {
    const fs::path from = pathOf(source);
    const fs::path target = targetOf(from, pathOf(folder));
    std::error_code failure;
    const auto found = fs::status(target, failure);
    if (found.type() == fs::file_type::not_found) return Present::no;
    if (failure) fail(target, failure);
    return haveSameContent(from, target) ? Present::same : Present::different;
}

void DocumentFilesService::copy(const std::string& source, const std::string& folder) {
    const fs::path from = pathOf(source);
    const fs::path target = targetOf(from, pathOf(folder));
    const fs::path beside = target.parent_path() / besideName();
    std::error_code failure;
    fs::copy_file(from, beside, failure);
    if (!failure) fs::rename(beside, target, failure);
    if (failure) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        fail(target, failure);
    }
}

} // namespace tellurix::standin
