#pragma once

#include "standin/ado_objects/RecordsetObject.h"

namespace tellurix::windows::ado {

/// ADO's Fields collection of a recordset.
ComPtr<IDispatch> fieldsObject(ComPtr<RecordsetObject> recordset);

/// One field, whose value is that of whichever row is current.
ComPtr<IDispatch> fieldObject(ComPtr<RecordsetObject> recordset, std::size_t index);

} // namespace tellurix::windows::ado
