#include "app/systemlibraries.h"

#include <windows.h>
// After the header that it needs.
#include <delayimp.h>

namespace {

// The libraries that are loaded on first use (packaging/windows lists them): what is built into the program for that
// asks here first.
FARPROC WINAPI beforeDelayedLoad(unsigned notification, PDelayLoadInfo info)
{
    if (notification != dliNotePreLoadLibrary)
        return nullptr;
    return reinterpret_cast<FARPROC>(LoadLibraryExA(info->szDll, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
}

} // namespace

// The name is the linker's.
PfnDliHook __pfnDliNotifyHook2 = beforeDelayedLoad; // NOLINT(bugprone-reserved-identifier)

void loadLibrariesFromSystemOnly()
{
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
}
