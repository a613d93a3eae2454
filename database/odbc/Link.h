#pragma once

#include "database/odbc/errors.h"

#include <chrono>
#include <map>
#include <memory>
#include <string>

namespace tellurix::odbc {

class Source;
struct TableDescription;

/// One connection to the server, from connecting to its end, which may come by itself: then it is lost for
/// good, and somebody makes a new one.
class Link {
public:
    /// @throws base::DatabaseError (connection)
    Link(const Source& source, std::chrono::seconds patience);
    ~Link();
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    SQLHDBC handle() const { return connection_; }
    /// What was said about the last call on one of its handles, without the secrets of the source.
    Report report(SQLSMALLINT handleType, SQLHANDLE handle) const;

    /// Whether the driver knows that nothing can be sent any more. It asks nobody, so a server that went
    /// away a moment ago is not missed yet.
    bool isLost() const;
    /// What the driver tells of itself or of its server, such as SQL_IDENTIFIER_QUOTE_CHAR.
    std::string textInfo(SQLUSMALLINT what) const;
    SQLUSMALLINT numberInfo(SQLUSMALLINT what) const;

    /// What is known of tables whose rows were edited, by name: it costs some questions and is asked once.
    std::map<std::string, std::shared_ptr<const TableDescription>>& tables() { return tables_; }

private:
    void free();

    const Source& source_;
    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    bool connected_ = false;
    std::map<std::string, std::shared_ptr<const TableDescription>> tables_;
};

} // namespace tellurix::odbc
