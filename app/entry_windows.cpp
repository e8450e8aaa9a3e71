#include "app/entry.h"
#include "app/systemlibraries.h"

#include <windows.h>

// The platform hands over everything after the program name as it was typed, quotes and blanks included.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int)
{
    loadLibrariesFromSystemOnly();
    return runProgram(QString::fromWCharArray(commandLine));
}
