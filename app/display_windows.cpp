#include "app/display.h"

#include <QGuiApplication>

bool displayIsAvailable()
{
    return true;
}

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
    return true;
}
