#include "database/embedded/sqlite/file_origin.h"

#include <array>
#include <fstream>
#include <string_view>

namespace tellurix::embedded {

FileOrigin originOf(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) return FileOrigin::nobodys;
    constexpr std::size_t headerSize = 100;
    constexpr std::size_t markAt = 68;
    constexpr std::string_view magic{"SQLite format 3\0", 16};
    std::array<char, headerSize> header{};
    std::ifstream stream(file, std::ios::binary);
    stream.read(header.data(), header.size());
    // Of a file that cannot be read SQLite says why.
    if (stream.gcount() == 0) return FileOrigin::nobodys;
    if (stream.gcount() < std::streamsize{headerSize} ||
        !std::string_view(header.data(), headerSize).starts_with(magic))
        return FileOrigin::noDatabase;
    std::uint32_t mark = 0;
    for (std::size_t index = markAt; index < markAt + sizeof mark; ++index)
        mark = mark << 8U | static_cast<unsigned char>(header.at(index));
    if (mark == 0) return FileOrigin::unmarked;
    return mark == std::uint32_t{ownApplicationId} ? FileOrigin::own : FileOrigin::foreign;
}

} // namespace tellurix::embedded
