#pragma once

#include "module/base/database.h"

#include <string>

namespace tellurix::contract {

/// Sends an UPDATE of the row of one contract.
/// @throws base::Refused when a colleague has deleted the contract, which is no error of the server's
void updateContract(base::Connection& connection, const std::string& statement, std::int32_t contract);

/// Writes one column; an empty value becomes NULL. The value goes into the statement as it stands.
/// @throws base::Refused when a colleague has deleted the contract
void setContractField(base::Connection& connection, const std::string& column, const std::string& value,
                      std::int32_t contract);

/// Deletes a contract and all that belongs to it.
void discardContract(base::Connection& connection, std::int32_t contract);

/// As `updateContract` for a row that was read.
/// @throws base::Refused when there is none
void requireContract(base::Recordset& contract);

} // namespace tellurix::contract
