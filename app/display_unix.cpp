#include "app/display.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>

namespace {

bool xServerAnswers()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

bool displayIsAvailable()
{
    // Whoever names a platform has chosen for themselves.
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return true;
    // A variable left over from a session that has ended names a server that no longer answers.
    return !qEnvironmentVariableIsEmpty("DISPLAY") && xServerAnswers();
}

void doWithoutDisplay()
{
    qputenv("QT_QPA_PLATFORM", "minimal"); // "offscreen" would read all of the fonts' configuration before it ends
}

void prepareForDenseScreens()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // In whole steps, which is the toolkit's default: it goes by the physical size of the screen here, so that a
    // finer scale would blur every picture on almost every screen.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

bool boxesCanBeSeen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}
