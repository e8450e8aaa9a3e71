#include "app/application.h"

#include "configuration.h"
#include "settings/appsettings.h"
#include "settings/datadirectory.h"

#include <QStyleFactory>

namespace {

void setIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(Configuration::version));
    QCoreApplication::setOrganizationName(QStringLiteral("Kelvory"));
    QCoreApplication::setOrganizationDomain(QString::fromLatin1(Configuration::organisationDomain));
}

// Where "plastique" is not to be had, its heir takes its place; never the platform's own look, which the style sheet
// is not made for.
void setWidgetStyle()
{
    const QString plastique = QStringLiteral("plastique");
    const bool isThere = QStyleFactory::keys().contains(plastique, Qt::CaseInsensitive);
    QApplication::setStyle(isThere ? plastique : QStringLiteral("fusion"));
}

void loadSettings()
{
    DataDirectory::select();
    AppSettings::instance().setProfile(QStringLiteral("global"));
    AppSettings::instance().load();
}

} // namespace

Application::Application(int &argumentCount, char **arguments)
    : QApplication(argumentCount, arguments)
{
    // Until init() gives the program its identity it has none, whatever the platform reads from the executable.
    setApplicationVersion(QString());
}

Application::~Application()
{
    AppSettings::instance().save();
}

void Application::init()
{
    setIdentity();
    setWidgetStyle();
    loadSettings();
}
