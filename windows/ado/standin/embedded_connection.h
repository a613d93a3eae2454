#pragma once

#include "automation/ComPtr.h"
#include "common/Clock.h"

namespace tellurix::windows::ado {

/// A closed connection in the shape of ADODB.Connection, over the embedded database: `Open` takes
/// the name of a file, alone or as "Data Source=…". Its recordsets are its own: `NewRecordset` makes
/// one where a client of ADO would create an ADODB.Recordset.
/// @param clock what GETDATE() answers; outlives all connections
ComPtr<IDispatch> createEmbeddedConnection(const common::Clock& clock);

} // namespace tellurix::windows::ado
