#include "module/deductions/CalculationStatements.h"

#include "module/base/StatementText.h"

namespace tellurix::deductions {

using base::StatementText;

namespace {

/// @param nameIs up to the name; reading and deleting write one blank before "=", updating two
StatementText& keyed(StatementText& statement, std::string_view nameIs, const std::string& name,
                     const std::string& type) {
    return statement.fixed(nameIs).quotedAsItStands(name).fixed(" AND VER_TYPE = ").quotedAsItStands(type);
}

StatementText& assigned(StatementText& statement, const std::string& column, const std::string& value) {
    statement.identifier(column);
    return value.empty() ? statement.fixed(" = NULL ") : statement.fixed(" = ").quotedAsItStands(value);
}

} // namespace

std::string CalculationStatements::readLines() const {
    StatementText query{"SELECT * FROM ABSCHLAG"};
    return keyed(query, " WHERE RECH_NAME = ", name_, type_).text();
}

std::string CalculationStatements::readModelColumn(const std::string& column) const {
    StatementText query{"SELECT "};
    query.identifier(column).fixed(" FROM ABSCHLAG");
    return keyed(query, " WHERE RECH_NAME = ", name_, type_).text();
}

std::string CalculationStatements::readSubset(std::size_t line) const {
    StatementText query{"SELECT SUBSET_DEF FROM ABSCHLAG"};
    return keyed(query, " WHERE RECH_NAME = ", name_, type_).fixed(" AND LINE_NUM = ").number(line).text();
}

std::string CalculationStatements::deleteLines() const {
    StatementText statement{"DELETE FROM ABSCHLAG"};
    return keyed(statement, " WHERE RECH_NAME = ", name_, type_).text();
}

std::string CalculationStatements::insertLine(std::size_t line) const {
    StatementText statement{"INSERT INTO ABSCHLAG (RECH_NAME,LINE_NUM,VER_TYPE) VALUES ( "};
    statement.quotedAsItStands(name_).fixed(" , ").number(line).fixed(" , ").quotedAsItStands(type_);
    return statement.fixed(" )").text();
}

std::string CalculationStatements::updateLineColumn(const std::string& column, const std::string& value,
                                                    std::size_t line) const {
    StatementText statement{"UPDATE ABSCHLAG SET "};
    keyed(assigned(statement, column, value), " WHERE RECH_NAME  = ", name_, type_);
    return statement.fixed(" AND LINE_NUM = ").number(line).text();
}

std::string CalculationStatements::updateModelColumn(const std::string& column,
                                                     const std::string& value) const {
    StatementText statement{"UPDATE ABSCHLAG SET "};
    return keyed(assigned(statement, column, value), " WHERE RECH_NAME  = ", name_, type_).text();
}

std::string CalculationStatements::conditionOf(std::size_t line) const {
    StatementText condition;
    return keyed(condition, "RECH_NAME  = ", name_, type_).fixed(" AND LINE_NUM = ").number(line).text();
}

} // namespace tellurix::deductions
