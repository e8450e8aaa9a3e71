#include "ui/shell.h"

#include <windows.h>
// After the header that it needs.
#include <shellapi.h>

void openWithShell(const QString &path)
{
    wchar_t file[MAX_PATH] = {};
    wchar_t parameters[MAX_PATH] = {};
    if (path.isEmpty() || path.size() >= MAX_PATH)
        return;
    path.toWCharArray(file);
    ShellExecuteW(nullptr, L"open", file, parameters, nullptr, SW_SHOWNORMAL);
}
