#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/Dispatch.h"
#include "module/base/database.h"

#include <string_view>

namespace tellurix::windows::ado {

/// What the database port says about a failed call. What a server reported stands in the connection's
/// Errors: all its texts, each on a line, and the number and SQLSTATE of the first. A failure of ADO
/// itself never gets that far; its own text and number are taken.
base::DatabaseError databaseError(const AutomationError& error, Dispatch& connection,
                                  std::string_view statement);

/// Forgets what an earlier statement, the host's own perhaps, left in the connection's Errors: a failure
/// that ADO itself raises would be told by it.
void forgetErrors(Dispatch& connection);

/// Runs `work` and turns a failed call of ADO into the error that the database port promises.
template <typename Work>
auto reported(Dispatch& connection, std::string_view statement, const Work& work) -> decltype(work()) {
    try {
        return work();
    } catch (const AutomationError& error) {
        throw databaseError(error, connection, statement);
    }
}

} // namespace tellurix::windows::ado
