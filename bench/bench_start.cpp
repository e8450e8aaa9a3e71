#include "bench/pairs.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr double mostAllowed = 1.2;

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

// Told of every window that appears on the screen: the frames that the window manager puts around windows.
Connection connectionThatWatches()
{
    Connection connection(xcb_connect(nullptr, nullptr), &xcb_disconnect);
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    xcb_change_window_attributes(connection.get(), root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection.get());
    return connection;
}

bool isWindow(xcb_connection_t *connection, const xcb_map_notify_event_t *event)
{
    xcb_get_geometry_reply_t *geometry =
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, event->window), nullptr);
    const bool isLarge = geometry && geometry->width > 300;
    std::free(geometry);
    return isLarge;
}

// From the start of a program to the moment that its window is on the screen, in milliseconds.
double timeToWindow(const QString &program, const QProcessEnvironment &environment)
{
    const Connection connection = connectionThatWatches();
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer elapsed;
    elapsed.start();
    process.start(program, QStringList());
    process.waitForStarted();
    double time = 0;
    while (time == 0) {
        const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(xcb_wait_for_event(connection.get()),
                                                                               &std::free);
        if (!event)
            std::abort();
        if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY &&
            isWindow(connection.get(), reinterpret_cast<const xcb_map_notify_event_t *>(event.get())))
            time = static_cast<double>(elapsed.nsecsElapsed()) / 1e6;
    }
    process.kill();
    process.waitForFinished();
    return time;
}

} // namespace

/// How long the program takes to show its window without the splash, as a multiple of an empty window's time: 20 pairs
/// in turn, on a display with a window manager. bench_start ORV EMPTYWINDOW, which fails if that is more than 1.2.
int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    const QTemporaryDir data;
    const QString config = data.filePath(QStringLiteral("Kelvory/Orvanta/config"));
    QDir().mkpath(config);
    QFile settings(config + QStringLiteral("/global.xml"));
    if (!settings.open(QIODevice::WriteOnly))
        return 2;
    settings.write("<Settings><IsFirstStart>false</IsFirstStart>"
                   "<DisableSplashScreen>true</DisableSplashScreen></Settings>");
    settings.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());

    std::vector<double> own;
    std::vector<double> empty;
    for (int pair = 0; pair < 20; ++pair) {
        own.push_back(timeToWindow(QFile::decodeName(argv[1]), environment));
        empty.push_back(timeToWindow(QFile::decodeName(argv[2]), environment));
    }
    const double ratio = median(own) / median(empty);
    std::printf("orv %.1f ms, empty window %.1f ms, ratio %.2f\n", median(own), median(empty), ratio);
    return ratio <= mostAllowed ? 0 : 1;
}
