@echo off
rem Meldet das Vertragsmodul an, das neben dieser Datei liegt.
rem   register.cmd [user] [standin]
rem   user      nur fuer den angemeldeten Benutzer; sonst fuer alle dieses Rechners (als Administrator)
rem   standin   auch Tellurix_Loc.dll, die Dienste fuer einen Host, der keine eigenen mitbringt.
rem             Eigene, die schon angemeldet sind, werden dadurch ersetzt.
setlocal
set folder=%~dp0
set options=/s
set libraries=Tellurix_Vertrag.dll
:words
if "%~1"=="" goto register
if /i "%~1"=="user" goto user
if /i "%~1"=="standin" goto standin
echo Unbekanntes Wort: %~1. Bekannt sind: user, standin.
exit /b 2
:user
set options=/s /n /i:user
shift
goto words
:standin
set libraries=Tellurix_Loc.dll Tellurix_Vertrag.dll
shift
goto words
:register
call "%folder%each_library.cmd" %libraries%
exit /b %errorlevel%
