#include "database/odbc/Database.h"

#include "database/odbc/OdbcConnection.h"

namespace tellurix::odbc {

Database::Database(Source source, Options options)
    : source_(std::make_shared<Source>(std::move(source))), options_(std::move(options)) {}

std::unique_ptr<base::Connection> Database::connect() const {
    auto session = std::make_shared<Session>(source_, options_);
    session->connect();
    return std::make_unique<OdbcConnection>(std::move(session));
}

} // namespace tellurix::odbc
