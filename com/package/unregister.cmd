@echo off
rem Meldet die Bibliotheken wieder ab, in derselben Weise, in der sie angemeldet wurden.
rem   unregister.cmd         fuer alle Benutzer dieses Rechners (als Administrator)
rem   unregister.cmd user    nur fuer den angemeldeten Benutzer
setlocal
set options=/s /u
if /i "%~1"=="user" set options=/s /u /n /i:user
call "%~dp0each_library.cmd" Tellurix_Vertrag.dll Tellurix_Loc.dll
exit /b %errorlevel%
