#pragma once

#include "common/database.h"

#include <string>

namespace tellurix::contract {

/// Sends an UPDATE of the row of one contract.
/// @throws common::Refused when a colleague has deleted the contract, which is no error of the server's
void updateContract(common::Connection& connection, const std::string& statement);

/// The same for a row that was read.
/// @throws common::Refused when there is none
void requireContract(common::Recordset& contract);

} // namespace tellurix::contract
