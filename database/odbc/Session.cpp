#include "database/odbc/Session.h"

#include "database/odbc/OdbcRecordset.h"
#include "module/base/text.h"

namespace tellurix::odbc {

using base::DatabaseError;
using base::DatabaseErrorCategory;

Session::Session(std::shared_ptr<const Source> source, Database::Options options)
    : source_(std::move(source)), options_(std::move(options)) {}

void Session::connect() {
    link_ = std::make_shared<Link>(*source_, options_.loginTime);
    try {
        setOptions();
        requireDayFirst();
    } catch (...) {
        link_.reset();
        throw;
    }
}

void Session::setOptions() {
    for (const std::string& option : options_.rules.options) {
        try {
            Statement{link_, option, option, options_.answerTime}.execute();
        } catch (const DatabaseError& error) {
            throw DatabaseError(DatabaseErrorCategory::connection,
                                "The server refuses \"" + option +
                                    "\", without which nothing can be sent to it (" + source_->description() +
                                    "): " + error.what(),
                                option, DatabaseError::noPosition, error.nativeCode(), error.sqlState());
        }
    }
}

base::Value Session::answerOf(const std::string& question) {
    Statement statement{link_, question, question, options_.answerTime};
    statement.execute();
    return statement.firstField();
}

/// Some servers accept the options without effect. Every date that the module writes would be another one, or
/// an error.
void Session::requireDayFirst() {
    using namespace std::chrono_literals;
    std::string found;
    try {
        const base::Value answer = answerOf(options_.rules.dayQuestion);
        const auto* moment = std::get_if<base::DateTime>(&answer);
        if (moment != nullptr && base::dayOf(*moment) == 2024y / 12 / 31) return;
        found = "as another day";
    } catch (const DatabaseError& error) {
        if (error.category() == DatabaseErrorCategory::connection) throw;
        found = std::string{"as an error: "} + error.what();
    }
    throw DatabaseError(
        DatabaseErrorCategory::connection,
        "This login reads dates in another order than day, month, year, and 31.12.2024 " + found +
            "\nPut it right with: " +
            base::filled(options_.rules.remedy, {textOf(answerOf(options_.rules.loginQuestion))}),
        options_.rules.dayQuestion);
}

std::string Session::schema() {
    return send(options_.rules.schemaQuestion, options_.rules.schemaQuestion, true,
                [](const std::unique_ptr<Statement>& statement) {
                    statement->execute();
                    return textOf(statement->firstField());
                });
}

void Session::takeRowsIntoMemory() {
    // One that has been read to its end takes itself off the list.
    for (OdbcRecordset* rows : std::vector<OdbcRecordset*>(open_))
        if (rows->isReading()) rows->readRemainingRows();
}

void Session::readAllRows() {
    for (OdbcRecordset* rows : std::vector<OdbcRecordset*>(open_))
        rows->readRemainingRows();
}

DatabaseError Session::lost(const DatabaseError& error, bool reading) {
    link_.reset();
    return {DatabaseErrorCategory::connection,
            std::string{"The connection to the database server was lost"} +
                (reading ? "" : "; whether this was still carried out is not known") +
                ". The next statement connects anew.\n" + error.what(),
            error.statement(),
            DatabaseError::noPosition,
            error.nativeCode(),
            error.sqlState()};
}

} // namespace tellurix::odbc
