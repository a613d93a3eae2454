@echo off
rem Meldet die Bibliotheken wieder ab, in derselben Weise, in der sie angemeldet wurden. Was ein Host
rem selbst angemeldet hat, bleibt.
rem   unregister.cmd         fuer alle Benutzer dieses Rechners (als Administrator)
rem   unregister.cmd user    nur fuer den angemeldeten Benutzer
setlocal
set options=/s /u
if "%~1"=="" goto unregister
set options=/s /u /n /i:user
if /i "%~1"=="user" if "%~2"=="" goto unregister
echo Unbekannt: %*. Bekannt ist: user.
exit /b 2
:unregister
call "%~dp0each_library.cmd" Tellurix_Vertrag.dll Tellurix_Loc.dll
exit /b %errorlevel%
