@echo off
rem Installs the per-key keyboard application from the package that the keyboard's vendor puts
rem beside this file. Lumikey runs it when the per-key application is chosen, with administrator
rem rights and without a window, so whatever has to be told opens a window of its own.
rem Ends with 0 when a package was installed, 1 when that failed, 2 when there is none.
setlocal
if "%~1"=="/tell" goto tell

cd /d "%~dp0"
set package=
for %%P in (*.appx *.msix *.appxbundle *.msixbundle) do set "package=%%~fP"
if not defined package goto none

echo Installing "%package%"
"%SystemRoot%\System32\WindowsPowerShell\v1.0\powershell.exe" -NoProfile -NonInteractive -ExecutionPolicy Bypass -Command "$ErrorActionPreference = 'Stop'; Add-AppxPackage -Path $env:package"
if errorlevel 1 goto failed
exit /b 0

:none
start "Lumikey per-key application" "%ComSpec%" /c %~nx0 /tell none
call :none_text
exit /b 2

:failed
start "Lumikey per-key application" "%ComSpec%" /c %~nx0 /tell failed
call :failed_text
exit /b 1

:tell
call :%~2_text
echo.
pause
exit /b 0

:none_text
echo The per-key application was not installed: no application package lies in
echo the folder
echo   "%~dp0"
echo The keyboard's vendor supplies it, a file that ends in .msixbundle,
echo .appxbundle, .msix or .appx. Put it into that folder, then uncheck and check
echo the per-key application in Lumikey.
exit /b 0

:failed_text
echo The per-key application was not installed: Windows refused the package in
echo the folder
echo   "%~dp0"
echo Open the package by a double click there to see why.
exit /b 0
