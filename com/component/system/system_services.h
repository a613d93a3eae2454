#pragma once

#include "module/host/document_services.h"

#include <memory>

namespace tellurix::windows {

/// What the component takes from Windows itself and not from its host.

/// Files by Windows' own calls: folders of a server (\\server\share) and of a drive alike.
std::unique_ptr<host::DocumentFiles> systemFiles();
/// The mail program that Windows knows, by the system's mail interface (MAPI).
std::unique_ptr<host::MailSession> systemMail();

} // namespace tellurix::windows
