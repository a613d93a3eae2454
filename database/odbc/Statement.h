#pragma once

#include "database/odbc/Link.h"
#include "database/odbc/values.h"

#include <memory>
#include <string>
#include <vector>

namespace tellurix::odbc {

/// One statement handle: a text on its way, and the answers that come back, one after the other.
/// Every operation throws base::DatabaseError, of the category `connection` once the link is lost.
class Statement {
public:
    /// @param text for the server; @param told for errors: what the port's user sent
    /// @param answerTime how long the driver waits for an answer; 0 for ever
    Statement(std::shared_ptr<Link> link, std::string_view text, std::string_view told,
              std::chrono::seconds answerTime);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Calls a function of the catalogue, which answers with rows.
    template <typename Call>
    void ask(const Call& call) {
        check(call(handle_));
    }
    /// Runs the text, on the first answer afterwards.
    void execute(std::vector<Parameter>& parameters);
    void execute();
    /// The columns of the first answer without running the text; none where the driver cannot say.
    std::vector<Column> describe();

    /// The columns of the present answer; none for a count.
    std::vector<Column> columns();
    /// How many rows the present answer changed; -1 where nothing was counted.
    std::int64_t rowCount();
    /// On the next row of the present answer.
    /// @return false when there is none
    bool fetch();
    /// @param columns those of the answer
    std::vector<base::Value> row(const std::vector<Column>& columns);
    /// All rows of the present answer that have not been fetched.
    std::vector<std::vector<base::Value>> rows(const std::vector<Column>& columns);
    /// The first field of the first row of the present answer; NULL when it has none.
    base::Value firstField();
    /// On to the next answer.
    /// @return false when there is none
    bool nextAnswer();

private:
    void check(SQLRETURN result);
    base::Value value(SQLUSMALLINT number, const Column& column);
    base::Value text(SQLUSMALLINT number);

    std::shared_ptr<Link> link_;
    std::string text_;
    std::string told_;
    SQLHSTMT handle_ = SQL_NULL_HSTMT;
    bool nothingFound_ = false; ///< what ran changed no row and said no more than that
    std::u16string part_;       ///< of a text that is being read
};

} // namespace tellurix::odbc
