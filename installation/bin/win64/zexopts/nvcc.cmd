@echo off
rem Runs the program of the first argument with all that follows. Where that is @FILE, a response file for a long
rem command, the file is handed over as nvcc reads one. No jumps: cmd.exe finds labels by the line ends of the file.
set "ZEX_FILE=%~2"
if not "%ZEX_FILE:~0,1%"=="@" set "ZEX_FILE="
if defined ZEX_FILE %1 --options-file "%ZEX_FILE:~1%"
if not defined ZEX_FILE %*
