@echo off
rem Runs every test and writes report.html beside this file. windows.md says more.
setlocal
set runner=%~dp0x86\RunTests.exe
if "%PROCESSOR_ARCHITECTURE%"=="AMD64" goto wide
if "%PROCESSOR_ARCHITEW6432%"=="AMD64" goto wide
goto run
:wide
"%~dp0x64\RunTests.exe" --probe
if %errorlevel%==42 set runner=%~dp0x64\RunTests.exe
:run
"%runner%" %*
set result=%errorlevel%
if "%~1"=="" pause
exit /b %result%
