#pragma once

#include "module/host/document_services.h"
#include "module/host/value_services.h"

#include <memory>

namespace tellurix::windows {

/// What the component takes from Windows itself and not from its host.

/// Files by Windows' own calls: folders of a server (\\server\share) and of a drive alike.
std::unique_ptr<host::DocumentFiles> systemFiles();
/// The mail program that Windows knows, by the system's mail interface (MAPI).
/// @param settings whose "MAILRECIPIENTS" says how the recipients are named: BCC (also when it is empty), TO,
/// CC
std::unique_ptr<host::MailSession> systemMail(host::NamedSettings& settings);

} // namespace tellurix::windows
