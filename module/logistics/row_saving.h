#pragma once

#include "module/base/Refused.h"
#include "module/base/date_time.h"
#include "module/host/services.h"

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// How the change stamps of helpers and centre are shown.
inline constexpr const char* stampMask = "dd.MM.yyyy hh:mm";

/// The centre's change stamp as the statements write it: "09.03.2026 08:00:00".
std::string centreStamp(base::DateTime now);

/// Reports what stopped the saving of many rows.
/// @param row by which a message calls the row that failed
/// @param written of the `changed` rows
/// @param besides what else is to be told of the saving
/// @throws base::Refused always: where it happened and how far the saving came
[[noreturn]] void stopSaving(host::HostServices& services, const std::exception& error,
                             const std::string& row, std::size_t written, std::size_t changed,
                             const std::vector<base::Refused::Sentence>& besides = {});

} // namespace tellurix::logistics
