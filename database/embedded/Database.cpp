#include "database/embedded/Database.h"

#include "database/embedded/execution/EmbeddedConnection.h"
#include "database/embedded/execution/reported.h"

namespace tellurix::embedded {

Database::Database(std::filesystem::path file, const base::Clock& clock, Options options)
    : file_(std::move(file)), clock_(clock), options_(options) {
    // Shows at once whether the file is there and is a database of ours.
    reported({}, [&] {
        readOnly_ = SqliteConnection(file_, options_.create, options_.patience, clock_).isReadOnly();
    });
    options_.create = false;
}

void Database::moveLogIntoFile() const {
    reported({}, [&] { SqliteConnection(file_, false, options_.patience, clock_).moveLogIntoFile(); });
}

std::unique_ptr<base::Connection> Database::connect() const {
    return reported({}, [&] {
        return std::make_unique<EmbeddedConnection>(
            std::make_shared<Engine>(file_, options_.create, options_.patience, clock_));
    });
}

} // namespace tellurix::embedded
