#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/DispatchObject.h"
#include "module/base/database.h"

#include <memory>
#include <string>
#include <vector>

namespace tellurix::windows::ado {

/// An error of the database as an Error object tells it.
struct ServerError {
    HRESULT number;
    std::string description;
    std::string state; ///< SQLSTATE
};

/// What the last failed statement of a connection reported; shared with the scripts that look at it.
using ServerErrors = std::vector<ServerError>;

/// The number and SQLSTATE that a server would give for such an error.
ServerError serverErrorOf(const base::DatabaseError& error);

/// The object that `Errors` of a connection answers.
ComPtr<IDispatch> errorsObject(std::shared_ptr<ServerErrors> errors);

/// Who reports errors here.
inline constexpr const char* sourceName = "Tellurix.Embedded";

/// ADO's own errors, with their numbers of the documentation.
enum class AdoError : int {
    noCurrentRow = 3021,
    notAllowedNow = 3219,
    notSupported = 3251,
    noSuchItem = 3265,
    closed = 3704,
    alreadyOpen = 3705,
    noConnection = 3709
};
[[noreturn]] void fail(AdoError error);

} // namespace tellurix::windows::ado
