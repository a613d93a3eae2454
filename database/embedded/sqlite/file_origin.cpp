#include "database/embedded/sqlite/file_origin.h"

#include <array>
#include <filesystem>
#include <string_view>

namespace tellurix::embedded {

FileOrigin originOf(sqlite3& database) {
    constexpr std::size_t headerSize = 100;
    constexpr std::size_t markAt = 68;
    constexpr std::string_view magic{"SQLite format 3\0", 16};
    std::array<char, headerSize> header{};
    sqlite3_file* file = nullptr;
    sqlite3_file_control(&database, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    std::error_code error;
    const auto size = std::filesystem::file_size(
        reinterpret_cast<const char8_t*>(sqlite3_db_filename(&database, "main")), error);
    // Of a file that cannot be read SQLite says why.
    if (error || size == 0 || file == nullptr || file->pMethods == nullptr) return FileOrigin::nobodys;
    if (size < headerSize) return FileOrigin::noDatabase;
    if (file->pMethods->xRead(file, header.data(), headerSize, 0) != SQLITE_OK) return FileOrigin::nobodys;
    if (!std::string_view(header.data(), headerSize).starts_with(magic)) return FileOrigin::noDatabase;
    std::uint32_t mark = 0;
    for (std::size_t index = markAt; index < markAt + sizeof mark; ++index)
        mark = mark << 8U | static_cast<unsigned char>(header.at(index));
    if (mark == 0) return FileOrigin::unmarked;
    return mark == std::uint32_t{ownApplicationId} ? FileOrigin::own : FileOrigin::foreign;
}

} // namespace tellurix::embedded
