' A client that knows the component by its names alone. Says what is not as it should be.
Option Explicit
Dim failures
failures = 0

Sub Check(what, actual, expected)
    If actual = expected Then Exit Sub
    WScript.Echo what & ": " & actual & " instead of " & expected
    failures = failures + 1
End Sub

Dim version
Set version = CreateObject("Tellurix_Vertrag.C_Version")
Check "version", version.DLL_Version, "2.0"
Check "version, called", version.DLL_Version(), "2.0"

Dim contracts, pair, parts
Set contracts = CreateObject("Tellurix_Vertrag.clsVertrag")
For Each pair In Array("R=V", "r=V", "A1=V1", "a3=V3", "A8=V8", "A9=", "A0=", "A10=", "X=", "=")
    parts = Split(pair, "=")
    Check pair, contracts.GetVertragType(parts(0)), parts(1)
Next

Dim source, noRecord
source = "Tellurix_Vertrag.clsVertrag"
noRecord = "TlxVar has to be a session record (Tellurix_Loc.TlxVar)"
On Error Resume Next
contracts.Vertrag_Run Nothing, 1, "", "R", ".", ",", "", True, False, Nothing, 1, False, "", False
Check "no record", Err.Source & ": " & Err.Description, source & ": " & noRecord
Err.Clear
contracts.F_Bereitstellung_WVO_Run "record", 1
Check "a text for a record", Err.Source & ": " & Err.Description, source & ": " & noRecord
Err.Clear
contracts.Vertrag_Run Nothing, "many", "", "R", ".", ",", "", True, False, Nothing, 1, False, "", False
Check "a word for a number", Err.Number, 13
Err.Clear
contracts.Vertrag_Run 1
Check "too few arguments", Err.Number, 450
Err.Clear
contracts.GetVertragType "R", "A1"
Check "too many arguments", Err.Number, 450
Err.Clear
contracts.Vertrag_Stop
Check "an unknown operation", Err.Number, 438
Err.Clear
contracts.GetVertragType = "R"
Check "assigning to an operation", Err.Number, 438

If failures = 0 Then WScript.Echo "Everything is as it should be."
