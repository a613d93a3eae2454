@echo off
rem Meldet die Bibliotheken an, die neben dieser Datei liegen.
rem   register.cmd         fuer alle Benutzer dieses Rechners (als Administrator)
rem   register.cmd user    nur fuer den angemeldeten Benutzer
setlocal
set options=/s
if /i "%~1"=="user" set options=/s /n /i:user
call "%~dp0each_library.cmd" Tellurix_Loc.dll Tellurix_Vertrag.dll
exit /b %errorlevel%
