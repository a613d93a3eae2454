#pragma once

#include <cstdint>
#include <filesystem>

namespace tellurix::embedded {

/// Whose a database file is, as far as its first bytes tell.
enum class FileOrigin : std::uint8_t {
    nobodys,  ///< there is no file, or it is empty
    own,      ///< it carries our mark
    unmarked, ///< SQLite's, without a mark: another program's, or ours from before there was one
    foreign,  ///< it carries another program's mark
    noDatabase
};

/// Stands in the place that SQLite has for an application's mark: "TLXV".
constexpr std::int32_t ownApplicationId = 0x544C5856;

/// Reads the file without SQLite, which might change it.
FileOrigin originOf(const std::filesystem::path& file);

} // namespace tellurix::embedded
