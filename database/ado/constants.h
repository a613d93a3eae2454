#pragma once

#include <cstdint>

/// The numbers of ADO's interfaces that are used here, by the names of its documentation.
namespace tellurix::windows::ado {

/// Field.Type
enum DataType : std::int32_t {
    adSmallInt = 2,
    adInteger = 3,
    adSingle = 4,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBoolean = 11,
    adDecimal = 14,
    adTinyInt = 16,
    adUnsignedTinyInt = 17,
    adUnsignedSmallInt = 18,
    adUnsignedInt = 19,
    adBigInt = 20,
    adUnsignedBigInt = 21,
    adNumeric = 131,
    adDBDate = 133,
    adDBTime = 134,
    adDBTimeStamp = 135,
    adVarNumeric = 139,
    adVarWChar = 202,
};

/// State of a connection or a recordset
constexpr std::int32_t adStateClosed = 0;
constexpr std::int32_t adStateOpen = 1;

constexpr std::int32_t adOpenForwardOnly = 0;
constexpr std::int32_t adOpenStatic = 3;
constexpr std::int32_t adLockReadOnly = 1;
constexpr std::int32_t adLockPessimistic = 2;
constexpr std::int32_t adCmdText = 1;
constexpr std::int32_t adAffectCurrent = 1;

/// EditMode of a recordset
constexpr std::int32_t adEditNone = 0;
constexpr std::int32_t adEditInProgress = 1;

/// NumericScale of a field that has none
constexpr std::int32_t noScale = 255;

} // namespace tellurix::windows::ado
