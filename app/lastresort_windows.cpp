#include "app/lastresort.h"

#include <windows.h>

void showErrorBox(const char *title, const char *text)
{
    MessageBoxA(nullptr, text, title, MB_ICONERROR | MB_OK);
}
