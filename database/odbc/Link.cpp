#include "database/odbc/Link.h"

#include "database/odbc/Source.h"
#include "database/odbc/TableDescription.h"

namespace tellurix::odbc {

Link::Link(const Source& source, std::chrono::seconds patience) : source_(source) {
    // An environment each: driver managers can be told to let only one call at a time into an environment,
    // and a session that waits for a lock must not keep the others waiting.
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_)))
        throw base::DatabaseError(base::DatabaseErrorCategory::connection, "ODBC cannot be used", {});
    SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, attribute(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_);
    SQLSetConnectAttrW(connection_, SQL_ATTR_LOGIN_TIMEOUT, attribute(static_cast<SQLULEN>(patience.count())),
                       0);
    std::u16string text = wide(source.connectionString());
    const SQLRETURN result = SQLDriverConnectW(connection_, nullptr, pointer(text), shortLength(text),
                                               nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    connected_ = SQL_SUCCEEDED(result);
    if (connected_) return;
    const Report report = this->report(SQL_HANDLE_DBC, connection_);
    free();
    throw base::DatabaseError(base::DatabaseErrorCategory::connection,
                              "The database server cannot be reached (" + source.description() +
                                  "): " + report.text,
                              {}, base::DatabaseError::noPosition, report.number, report.state);
}

Link::~Link() {
    free();
}

void Link::free() {
    if (connected_) SQLDisconnect(connection_);
    if (connection_ != SQL_NULL_HDBC) SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    SQLFreeHandle(SQL_HANDLE_ENV, environment_);
}

Report Link::report(SQLSMALLINT handleType, SQLHANDLE handle) const {
    Report report = reportOf(handleType, handle);
    report.text = source_.withoutSecrets(std::move(report.text));
    return report;
}

bool Link::isLost() const {
    SQLUINTEGER dead = SQL_CD_FALSE;
    SQLGetConnectAttrW(connection_, SQL_ATTR_CONNECTION_DEAD, &dead, sizeof(dead), nullptr);
    return dead == SQL_CD_TRUE;
}

std::string Link::textInfo(SQLUSMALLINT what) const {
    std::u16string text(128, u'\0');
    SQLSMALLINT bytes = 0;
    if (!SQL_SUCCEEDED(SQLGetInfoW(connection_, what, text.data(),
                                   static_cast<SQLSMALLINT>(text.size() * sizeof(SQLWCHAR)), &bytes)))
        return {};
    return narrow(std::u16string_view{text}.substr(0, static_cast<std::size_t>(bytes) / sizeof(SQLWCHAR)));
}

SQLUSMALLINT Link::numberInfo(SQLUSMALLINT what) const {
    SQLUSMALLINT number = 0;
    SQLGetInfoW(connection_, what, &number, sizeof(number), nullptr);
    return number;
}

} // namespace tellurix::odbc
