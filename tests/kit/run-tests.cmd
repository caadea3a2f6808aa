@echo off
rem Runs the tests of Orthoval Preferences; see README.txt.
if not exist "%~dp0ovRunTests.exe" (
    echo The test programs are missing. Extract the whole zip file first.
    exit /b 2
)
"%~dp0ovRunTests.exe" %*
set ov_code=%errorlevel%
rem The window of a double click remains until a key is pressed.
if "%~1"=="" pause >nul
exit /b %ov_code%
