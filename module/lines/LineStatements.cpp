#include "module/lines/LineStatements.h"

#include "module/base/StatementText.h"

namespace tellurix::lines {

using base::StatementText;

namespace {

StatementText& atPlace(StatementText& statement, int place, std::int32_t contract) {
    return statement.fixed(" WHERE ORDNUNG = ").number(place).fixed(" AND ID_VERTRAG = ").number(contract);
}

} // namespace

std::string LineStatements::insert() const {
    StatementText statement{"INSERT INTO "};
    statement.identifier(table_).fixed(" (ID_VERTRAG) VALUES (").number(contract_).fixed(")");
    return statement.text();
}

std::string LineStatements::newestKey() const {
    StatementText statement{"SELECT MAX(ID) FROM "};
    return statement.identifier(table_).text();
}

std::string LineStatements::removeOf(std::int64_t id) const {
    StatementText statement{"DELETE FROM "};
    return statement.identifier(table_).fixed(" WHERE ID =").number(id).text();
}

std::string LineStatements::lineAt(int place) const {
    StatementText statement{"SELECT * FROM "};
    return atPlace(statement.identifier(table_), place, contract_).text();
}

std::string LineStatements::lineOf(std::int64_t id) const {
    StatementText statement{"SELECT * FROM "};
    return statement.identifier(table_).fixed(" WHERE ID = ").number(id).text();
}

std::string LineStatements::keyAndSelectionAt(int place) const {
    StatementText statement{"SELECT ID, SELEKTION_VALUE FROM "};
    return atPlace(statement.identifier(table_), place, contract_).text();
}

std::string LineStatements::selectionAt(int place) const {
    StatementText statement{"SELECT SELEKTION_VALUE FROM "};
    return atPlace(statement.identifier(table_), place, contract_).text();
}

std::string LineStatements::selectionOf(std::int64_t id) const {
    StatementText statement{"SELECT SELEKTION_VALUE FROM "};
    return statement.identifier(table_).fixed(" WHERE ID = ").number(id).text();
}

std::string LineStatements::setSelectionAt(const std::string& literal, int place) const {
    StatementText statement{"UPDATE "};
    statement.identifier(table_).fixed(" SET SELEKTION_VALUE = ").quotedAsItStands(literal);
    return atPlace(statement, place, contract_).text();
}

std::string LineStatements::setSelectionOf(const std::string& literal, std::int64_t id) const {
    StatementText statement{"UPDATE "};
    statement.identifier(table_).fixed(" SET SELEKTION_VALUE = ").quotedAsItStands(literal);
    return statement.fixed(" WHERE ID = ").number(id).text();
}

std::string LineStatements::setDialogSelectionOf(const std::string& text, std::int64_t id) const {
    StatementText statement{"UPDATE "};
    statement.identifier(table_).fixed(" SET SELEKTION_VALUE = ").quotedOrNull(text);
    return statement.fixed(" WHERE ID = ").number(id).text();
}

std::string LineStatements::closeGapBehind(int place) const {
    StatementText statement{"UPDATE "};
    return statement.identifier(table_)
        .fixed(" SET ORDNUNG = ORDNUNG - 1 WHERE ORDNUNG > ")
        .number(place)
        .fixed(" AND ID_VERTRAG = ")
        .number(contract_)
        .text();
}

std::string LineStatements::openGapAt(int place) const {
    StatementText statement{"UPDATE "};
    return statement.identifier(table_)
        .fixed(" SET ORDNUNG = ORDNUNG + 1 WHERE ORDNUNG >= ")
        .number(place)
        .fixed(" AND ID_VERTRAG = ")
        .number(contract_)
        .text();
}

} // namespace tellurix::lines
