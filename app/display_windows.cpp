#include "app/display.h"

#include <QGuiApplication>

#include <windows.h>

namespace {

// Services and tasks that run while nobody is logged on have a desktop that is never shown.
bool desktopIsShown()
{
    USEROBJECTFLAGS flags = {};
    return !GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, nullptr) ||
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

// Wine without an X server has a desktop too, but nothing can be put on it.
bool windowCanBeCreated()
{
    HWND window = CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    if (window == nullptr)
        return false;
    DestroyWindow(window);
    return true;
}

} // namespace

bool displayIsAvailable()
{
    return desktopIsShown() && windowCanBeCreated();
}

// The one platform of the toolkit that this system has does not need one.
void doWithoutDisplay() {}

void prepareForDenseScreens()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // The user chooses the scale, in steps of a quarter.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

bool boxesCanBeSeen()
{
    return displayIsAvailable();
}
