#pragma once

#include "database/odbc/Database.h"
#include "database/odbc/Statement.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tellurix::odbc {

class OdbcRecordset;

/// What a connection and its recordsets share: the link to the server, made anew when it was lost, and the
/// rule that one statement is under way at a time.
class Session {
public:
    Session(std::shared_ptr<const Source> source, Database::Options options);

    /// Makes the link and sets the session.
    /// @throws base::DatabaseError (connection)
    void connect();

    /// Gives `work` a new statement, which may keep it. Rows that were being read are in memory before.
    /// @param text for the server; @param told for errors: what the port's user sent
    /// @param repeatable whether the text only reads, and so is sent once more when it meets a lost link
    /// @throws base::DatabaseError
    template <typename Work>
    auto send(std::string_view text, std::string_view told, bool repeatable, const Work& work) {
        for (bool again = false;; again = true) {
            // Rows that cannot be read any more lose the link.
            takeRowsIntoMemory();
            const bool isNew = link_ == nullptr;
            if (isNew) connect();
            try {
                return work(std::make_unique<Statement>(link_, text, told, options_.answerTime));
            } catch (const base::DatabaseError& error) {
                if (error.category() != base::DatabaseErrorCategory::connection) throw;
                if (!repeatable || again || isNew) throw lost(error, repeatable);
                link_.reset();
            }
        }
    }

    /// The link is gone, and the next statement makes another one.
    /// @param error that told so
    /// @param reading whether nothing but reading was under way
    base::DatabaseError lost(const base::DatabaseError& error, bool reading);
    bool isConnected() const { return link_ != nullptr; }
    Link& link() { return *link_; }

    /// The schema in which names without one are looked up first.
    std::string schema();

    /// Rows that are being read, or that nobody has asked for yet.
    void opened(OdbcRecordset& rows) { open_.push_back(&rows); }
    void closed(OdbcRecordset& rows) { std::erase(open_, &rows); }
    /// Before a text that may write: also rows that nobody has asked for yet are those of this moment.
    void readAllRows();

private:
    void takeRowsIntoMemory();
    void setOptions();
    void requireDayFirst();
    base::Value answerOf(const std::string& question);

    std::shared_ptr<const Source> source_;
    Database::Options options_;
    std::shared_ptr<Link> link_;
    std::vector<OdbcRecordset*> open_;
};

} // namespace tellurix::odbc
