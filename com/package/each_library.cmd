@echo off
rem Calls regsvr32 with %options% for each library that is named, in each architecture that this
rem Windows has. Called by register.cmd and unregister.cmd.
set failed=0
set system=%SystemRoot%\System32
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set system=%SystemRoot%\Sysnative
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" goto both
if /i "%PROCESSOR_ARCHITECTURE%"=="x86" goto only32
call :libraries x64 "%system%" %*
exit /b %failed%

:only32
call :libraries x86 "%system%" %*
exit /b %failed%

:both
call :libraries x64 "%system%" %*
call :libraries x86 "%SystemRoot%\SysWOW64" %*
exit /b %failed%

:libraries
for %%L in (%3 %4) do call :library %1 %2 %%L
exit /b 0

:library
"%~2\regsvr32.exe" %options% "%~dp0%1\%3"
if errorlevel 1 goto trouble
echo %1\%3: OK
exit /b 0
:trouble
echo %1\%3: regsvr32 meldet einen Fehler
set failed=1
exit /b 0
