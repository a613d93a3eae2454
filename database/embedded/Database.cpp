#include "embedded/Database.h"

#include "embedded/EmbeddedConnection.h"
#include "embedded/reported.h"

namespace tellurix::embedded {

Database::Database(std::filesystem::path file, const common::Clock& clock, Options options)
    : file_(std::move(file)), clock_(clock), options_(options) {
    // Shows at once whether the file is there and is a database.
    connect();
    options_.create = false;
}

std::unique_ptr<common::Connection> Database::connect() const {
    return reported({}, [&] {
        return std::make_unique<EmbeddedConnection>(
            std::make_shared<Engine>(file_, options_.create, options_.patience, clock_));
    });
}

} // namespace tellurix::embedded
