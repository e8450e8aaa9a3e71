#include "app/application.h"

#include "app/splashframe.h"
#include "configuration.h"
#include "locale/languagemanager.h"
#include "settings/appsettings.h"
#include "settings/datadirectory.h"
#include "ui/dialogstart.h"
#include "ui/mainwindow.h"
#include "ui/visualstyle.h"

#include <QDebug>
#include <QIcon>
#include <QLocale>
#include <QScreen>

namespace {

void setIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(Configuration::version));
    QCoreApplication::setOrganizationName(QStringLiteral("Kelvory"));
    QCoreApplication::setOrganizationDomain(QString::fromLatin1(Configuration::organisationDomain));
}

void setIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64})
        icon.addFile(QStringLiteral(":/img/orvanta-%1.png").arg(size));
    QApplication::setWindowIcon(icon);
}

void loadSettings()
{
    DataDirectory::select();
    AppSettings::instance().setProfile(QStringLiteral("global"));
    AppSettings::instance().load();
}

QVariant setting(SettingKey key, const QVariant &defaultValue)
{
    return AppSettings::instance().value(key, defaultValue);
}

// By the corners as the toolkit reports them: the right one is the left one plus the width less one.
QPoint truncatedCentre(const QRect &rectangle)
{
    return {(rectangle.left() + rectangle.right()) / 2, (rectangle.top() + rectangle.bottom()) / 2};
}

void centreOnOnlyScreen(QWidget *window)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() == 1)
        window->move(truncatedCentre(screens.first()->geometry()) - truncatedCentre(window->rect()));
}

QString splashMessage()
{
    return QLatin1String("Version: ") + QCoreApplication::applicationVersion() + QLatin1Char('\n') +
           QString::fromUtf8(Configuration::credit);
}

} // namespace

Application::Application(int &argumentCount, char **arguments)
    : QApplication(argumentCount, arguments)
{
}

Application::~Application()
{
    AppSettings::instance().save();
    mainWindow.reset();
    LanguageManager::destroyInstance();
}

void Application::init()
{
    setIdentity();
    VisualStyle::useWidgetStyle();
    setIcon();
    loadSettings();
    LanguageManager::instance().loadLanguages();
    qDebug().noquote() << "languages loaded";
    VisualStyle::apply();
    createMainWindow();
    if (setting(IsFirstStart, true).toBool())
        greetOnFirstStart();
    mainWindow->initWindow();
    showMainWindow();
    mainWindow->startUpdateTimer();
    mainWindow->calculateChecksum(property("AUTO_ADD").toString());
}

void Application::createMainWindow()
{
    Qt::WindowFlags flags = Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint | Qt::WindowMaximizeButtonHint |
                            Qt::WindowMinimizeButtonHint;
    if (setting(WindowStayOnTop, false).toBool())
        flags |= Qt::WindowStaysOnTopHint;
    mainWindow = std::make_unique<MainWindow>(nullptr, flags);
    mainWindow->setWindowTitle(applicationName());
}

void Application::greetOnFirstStart()
{
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(Language), QLocale::system().name());
    centreOnOnlyScreen(mainWindow.get());
    DialogStart(mainWindow.get(), Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint).exec();
}

void Application::showMainWindow()
{
    mainWindow->setWindowOpacity(0.0);
    mainWindow->show();
    if (!setting(DisableSplashScreen, false).toBool())
        showSplash(splashMessage(), QPixmap(QStringLiteral(":/img/splash.png")));
    qDebug().noquote() << "*success*initialization complete";
    mainWindow->setWindowOpacity(static_cast<qreal>(setting(WindowOpacity, 1).toFloat()));
    mainWindow->activateWindow();
    mainWindow->raise();
}
