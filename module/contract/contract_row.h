#pragma once

#include "module/base/database.h"

#include <string>

namespace tellurix::contract {

/// Sends an UPDATE of the row of one contract.
/// @throws base::Refused when a colleague has deleted the contract, which is no error of the server's
void updateContract(base::Connection& connection, const std::string& statement);

/// The same for a row that was read.
/// @throws base::Refused when there is none
void requireContract(base::Recordset& contract);

} // namespace tellurix::contract
