#pragma once

#include "module/host/services.h"

#include <memory>

namespace tellurix::windows {

/// The host's services for documents, each by its class of the host's library. Mails and files are the
/// system's (`com/component/system`).

std::unique_ptr<host::SpreadsheetExport> lateSpreadsheets();

} // namespace tellurix::windows
