#include "module/contract/contract_row.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"

namespace tellurix::contract {

using base::OwnText;
using base::Refused;

void updateContract(base::Connection& connection, const std::string& statement, std::int32_t contract) {
    const std::int64_t updated = connection.execute(statement).rowsAffected;
    if (updated > 0) return;
    // A server that was told not to count, as the batches of the logistics do for the rest of the session,
    // is asked whether there was anything to update.
    base::StatementText present{"SELECT ID_VERTRAG FROM VERTRAEGE WHERE ID_VERTRAG = "};
    if (updated == 0 || connection.open(present.number(contract).text())->atEnd())
        throw Refused{OwnText::contractIsGone};
}

void setContractField(base::Connection& connection, const std::string& column, const std::string& value,
                      std::int32_t contract) {
    base::StatementText statement{"UPDATE VERTRAEGE SET "};
    statement.identifier(column).fixed(" = ").quotedAsItStandsOrNull(value);
    statement.fixed(" WHERE ID_VERTRAG = ").number(contract);
    updateContract(connection, statement.text(), contract);
}

void discardContract(base::Connection& connection, std::int32_t contract) {
    const auto run = [&connection, contract](std::string_view before, std::string_view after = {}) {
        base::StatementText statement{before};
        connection.execute(statement.number(contract).fixed(after).text());
    };
    run("DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG = ");
    run("DELETE FROM VERTRAG_MENGEN WHERE ID_VERTRAG = ");
    run("DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ",
        ")");
    run("DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ",
        ")");
    run("DELETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ");
    run("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = ");
}

void requireContract(base::Recordset& contract) {
    if (contract.atEnd()) throw Refused{OwnText::contractIsGone};
}

} // namespace tellurix::contract
