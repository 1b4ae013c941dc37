@echo off
rem Runs the test programs of this folder and writes report.txt. With a name, as in "run-tests mail", only that one.
rem Exit status: 0 all passed, 1 some failed, 2 not run. Registry and files are left as they were.
setlocal
cd /d "%~dp0"
set key=HKLM\SOFTWARE\Corvane
reg query %key% >nul 2>&1
if not errorlevel 1 (
    echo The registry has settings of a Corvane mail server, which the tests would replace. Use another computer.
    exit /b 2
)
reg add %key% /f >nul 2>&1
if errorlevel 1 (
    echo The tests write to the registry. Start this file as an administrator.
    exit /b 2
)
set TEST_FOLDER=%CD%
mkdir temp
set TEMP=%CD%\temp
set TMP=%CD%\temp
rem Left out: what would wait for the user on a desktop, what needs the build machine's web server, and what
rem changes the user's proxy settings.
set GTEST_FILTER=-ProgramFile.TellsWhatIsWrongByTextAndStatus:Dialogs.TheDefaultTranslationComesFromTheDistributionServer
set GTEST_FILTER=%GTEST_FILTER%:HttpClient.AsksTheProxyOfTheSystemForTheWholeUrl
set status=0
ver >report.txt
for %%t in (test_%~1*.exe) do call :run %%t
type report.txt | find "== "
reg delete %key% /f >nul
rem A program that has just ended may still hold a file for a moment.
set tries=0
:clean
ping -n 2 127.0.0.1 >nul
rmdir /s /q temp
set /a tries+=1
if exist temp if %tries% lss 10 goto clean
echo The whole report is in %TEST_FOLDER%\report.txt
exit /b %status%

:run
echo Running %1 ...
%1 >>report.txt 2>&1
rem Not "if errorlevel 1": a crash has a negative status.
if %errorlevel% equ 0 (
    echo == %1: passed >>report.txt
) else (
    set status=1
    echo == %1: FAILED >>report.txt
)
exit /b 0
