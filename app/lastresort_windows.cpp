#include "app/display.h"
#include "app/lastresort.h"
#include "app/notice.h"

#include <windows.h>

void showErrorBox(const char *title, const char *text)
{
    writeToStandardError(QString::fromUtf8(text));
    if (displayIsAvailable())
        MessageBoxA(nullptr, text, title, MB_ICONERROR | MB_OK);
}
