#include "module/contract/contract_row.h"

#include "module/base/Refused.h"

namespace tellurix::contract {

using base::OwnText;
using base::Refused;

void updateContract(base::Connection& connection, const std::string& statement) {
    // A server that was told not to count answers -1: then there is nothing to be told.
    if (connection.execute(statement).rowsAffected == 0) throw Refused{OwnText::contractIsGone};
}

void requireContract(base::Recordset& contract) {
    if (contract.atEnd()) throw Refused{OwnText::contractIsGone};
}

} // namespace tellurix::contract
