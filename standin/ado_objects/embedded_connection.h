#pragma once

#include "com/automation/ComPtr.h"
#include "module/base/Clock.h"

#include <filesystem>
#include <functional>

namespace tellurix::windows::ado {

/// Done with the file of a database before it is opened.
using PrepareFile = std::function<void(const std::filesystem::path& file)>;

/// A closed connection in the shape of ADODB.Connection, over the embedded database: `Open` takes
/// the name of a file, alone or as "Data Source=…". Its recordsets are its own: `NewRecordset` makes
/// one where a client of ADO would create an ADODB.Recordset.
/// @param clock what GETDATE() answers; outlives all connections
/// @param prepare does what a file needs before it is opened, such as making it; may be empty
/// @param interfaceId a late-bound interface of a type library by which it can be asked for as well
ComPtr<IDispatch> createEmbeddedConnection(const base::Clock& clock, PrepareFile prepare = {},
                                           const IID& interfaceId = IID_IDispatch);

} // namespace tellurix::windows::ado
