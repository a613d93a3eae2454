#pragma once

#include "module/host/services.h"

#include <optional>
#include <string>

namespace tellurix::logistics {

/// The original sales document of a contract: a file of the user's that helpers and members see on the web.

/// Lets the user choose the document and copies it to the web server, and tells what came of it.
/// @return the path to keep: the one under which the web server finds it, whatever came of the copy;
///         nothing when the user cancelled, keeps the file that is there, or chose none
std::optional<std::string> chooseOriginal(host::HostServices& services, const host::TlxVar& session);

/// The path as it is kept: a drive that only the machines of the office have is written as its share. Where
/// the share is not known, the user is told and the path stays.
std::string pathForAll(host::HostServices& services, const host::TlxVar& session, std::string path);

} // namespace tellurix::logistics
