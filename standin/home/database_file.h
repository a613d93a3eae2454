#pragma once

#include "module/base/Clock.h"
#include "module/base/database.h"

#include <filesystem>
#include <string_view>

namespace tellurix::standin {

/// Before what says how to reach a server, in a `--database` value.
constexpr std::string_view serverMark = "odbc:";

/// Whether a `--database` value is a connection string rather than the name of a file.
bool isConnectionString(std::string_view database);

/// Where the database is when nobody says: in the user's data folder, which is made when missing.
/// @throws std::runtime_error when the user has no home
std::filesystem::path defaultDatabaseFile();

/// Puts the sample trade into the empty tables of the schema.
/// @throws base::DatabaseError
void fillWithSample(base::Connection& connection);

/// What a new database starts with.
enum class DatabaseContents { nothing, sample };

/// Makes the database file when it is not there. All or nothing: it is built beside its place and
/// put there when it is whole, so neither a failure nor a killed process leaves half a database,
/// and of two programs that start at once only one builds the file that both use. What killed ones left
/// beside it is removed.
/// @throws base::DatabaseError when it cannot be made, e.g. on a full disk (storageFull)
void createWhenMissing(const std::filesystem::path& file, DatabaseContents contents,
                       const base::Clock& clock);

} // namespace tellurix::standin
