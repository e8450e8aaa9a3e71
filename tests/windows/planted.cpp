// A library that somebody left beside the program. If it is ever loaded, it says so.

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    wchar_t name[32768] = {};
    GetModuleFileNameW(module, name, 32760);
    lstrcatW(name, L".loaded");
    CloseHandle(CreateFileW(name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return TRUE;
}
