#pragma once

#include "database/odbc/SessionRules.h"
#include "database/odbc/Source.h"
#include "module/base/database.h"

#include <chrono>
#include <memory>

namespace tellurix::odbc {

/// A database on a server, reached through an ODBC driver.
///
/// Every connection is one session of the server and belongs to the thread that uses it; `connect` itself may
/// be called from any thread. A session that is lost is told by the statement that meets the loss; the next
/// one connects anew.
class Database {
public:
    struct Options {
        SessionRules rules = SessionRules::transactSql();
        /// How long connecting may take.
        std::chrono::seconds loginTime{10};
        /// How long an answer may take before the connection is given up; zero for ever. Not for locks, which
        /// the server looks after itself: drivers lose the connection by it.
        std::chrono::seconds answerTime{120};
    };

    explicit Database(Source source, Options options);
    explicit Database(Source source) : Database(std::move(source), Options()) {}

    const Source& source() const { return *source_; }

    /// @throws base::DatabaseError (connection) when the server cannot be reached, lets nobody in, or does
    /// not read
    ///         dates with the day first; the message then has the statement that puts that right
    std::unique_ptr<base::Connection> connect() const;

private:
    std::shared_ptr<const Source> source_;
    Options options_;
};

} // namespace tellurix::odbc
