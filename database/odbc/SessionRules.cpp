#include "database/odbc/SessionRules.h"

namespace tellurix::odbc {

SessionRules SessionRules::transactSql() {
    // The language sets the order of a date's parts too, so it comes first.
    return {.options = {"SET LANGUAGE German", "SET DATEFORMAT dmy", "SET ARITHABORT ON",
                        "SET LOCK_TIMEOUT 5000"},
            .dayQuestion = "SELECT CAST('31.12.2024' AS datetime)",
            .schemaQuestion = "SELECT SCHEMA_NAME()",
            .loginQuestion = "SELECT SUSER_SNAME()",
            .remedy = "ALTER LOGIN [{}] WITH DEFAULT_LANGUAGE = German"};
}

} // namespace tellurix::odbc
