#include "contract/contract_row.h"

#include "common/Refused.h"

namespace tellurix::contract {

using common::OwnText;
using common::Refused;

void updateContract(common::Connection& connection, const std::string& statement) {
    // A server that was told not to count answers -1: then there is nothing to be told.
    if (connection.execute(statement).rowsAffected == 0) throw Refused{OwnText::contractIsGone};
}

void requireContract(common::Recordset& contract) {
    if (contract.atEnd()) throw Refused{OwnText::contractIsGone};
}

} // namespace tellurix::contract
