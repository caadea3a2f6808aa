@echo off
rem Checks all configuration files of a folder. Exit code: 0 nothing, 1 findings, 2 a failure.
setlocal
set folder=P:\Standards
set defaults=P:\Standards\defaults.cfg
set report=P:\Reports\standards.txt

if not exist "%folder%\*.cfg" exit /b 2
cd /d "%folder%"
call :check_all >"%report%" 2>&1
if not defined checked exit /b 2
if defined failed exit /b 2
if defined found exit /b 1
exit /b 0

:check_all
for %%f in (*.cfg) do (
    ovprefs check --defaults "%defaults%" "%%f"
    if errorlevel 1 set found=1
    if errorlevel 2 set failed=1
)
set checked=1
exit /b
