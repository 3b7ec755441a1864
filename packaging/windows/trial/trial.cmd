@echo off
rem Runs Lumikey's own tests on this machine, one after the other, and leaves what they found in
rem report.txt beside this file. Nothing is installed.
rem
rem   trial.cmd [/y] [quick]
rem
rem /y asks nothing before it begins; "quick" runs the few that show that the others would run.
rem Ends with 0 when every test passed, 1 when one failed, 2 when it was not begun.
setlocal
cd /d "%~dp0"
set wanted=
set agreed=
:arguments
if "%~1"=="" goto ask
if /i "%~1"=="/y" (set agreed=y) else (set wanted=%~1)
shift
goto arguments

:ask
if not "%agreed%"=="" goto begin
echo This deletes the settings of Lumikey of the user who runs it, and its start with Windows.
echo It moves the pointer and types: leave mouse and keyboard alone, for about an hour.
echo Save your work, close other windows, and leave Lumikey with "Exit" first.
set /p agreed=Begin? (y/n) 
if /i not "%agreed%"=="y" exit /b 2

:begin
set LUMIKEY_TRIAL=%CD%
set LUMIKEY_THROW_AWAY_USER=1
set PATH=%LUMIKEY_TRIAL%\Lumikey;%SystemRoot%\system32;%SystemRoot%
set QT_PLUGIN_PATH=%LUMIKEY_TRIAL%\Lumikey
set passed=0
set failed=0
set names=
if not exist results mkdir results
tests\trial-machine.exe results\machine.txt
echo Lumikey's tests, begun on %DATE% at %TIME%> report.txt
type results\machine.txt >> report.txt
for /f "usebackq eol=# tokens=1-4" %%a in ("tests\tests.txt") do call :run %%a %%b %%c %%d
echo.>> report.txt
echo Ended on %DATE% at %TIME%: %passed% passed, %failed% failed.%names%>> report.txt
echo %passed% passed, %failed% failed.%names%
echo The report is in %LUMIKEY_TRIAL%\report.txt
if not "%failed%"=="0" exit /b 1
exit /b 0

rem name, group, program, logical DPI that the toolkit is told
:run
if not "%wanted%"=="" if not "%2"=="%wanted%" exit /b 0
set LUMIKEY_TEST_DPI=%4
set QT_FONT_DPI=%4
echo %1
echo.>> report.txt
echo == %1, begun at %TIME%>> report.txt
tests\%3.exe -o results\%1.txt,txt
set code=%ERRORLEVEL%
if exist results\%1.txt type results\%1.txt >> report.txt
if "%code%"=="0" (
    set /a passed+=1
    echo == %1 passed, ended at %TIME%>> report.txt
) else (
    set /a failed+=1
    set names=%names% %1
    echo == %1 FAILED with %code%, ended at %TIME%>> report.txt
)
exit /b 0
