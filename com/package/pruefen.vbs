' Says which version of the contract module is registered.
WScript.Echo "Tellurix_Vertrag " & CreateObject("Tellurix_Vertrag.C_Version").DLL_Version
