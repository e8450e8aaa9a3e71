#include "update/versioncheck.h"

#include "configuration.h"
#include "settings/appsettings.h"
#include "update/foreigntext.h"
#include "update/replylimit.h"
#include "update/versionquery.h"
#include "update/versionreply.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QDesktopServices>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QNetworkReply>
#include <QPointer>
#include <QPushButton>

namespace {

// Lets a modal box run that its parent may delete meanwhile, and the parent whoever runs it, when the program ends.
struct DeleteIfStillThere
{
    QPointer<QMessageBox> box;
    ~DeleteIfStillThere() { delete box.data(); }
};

// Whatever the server sends for an address, only the web is opened.
void openAddress(const QString &address)
{
    if (const auto url = browserAddress(address))
        QDesktopServices::openUrl(*url);
    else
        qDebug().noquote().nospace() << "*fail*refused address: " << address;
}

void openLinksCarefully(QMessageBox &box)
{
    const auto labels = box.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->setOpenExternalLinks(false);
        QObject::connect(label, &QLabel::linkActivated, &openAddress);
    }
}

void withoutContextHelp(QWidget *window)
{
    window->setWindowFlags(window->windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

} // namespace

VersionCheck::VersionCheck(QObject *parent, bool isManual)
    : QObject(parent)
    , manual(isManual)
    , body(std::make_shared<QByteArray>())
{
    network.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    // Queued, since a box may stand there until this object and its network are gone.
    connect(&network, &QNetworkAccessManager::finished, this, &VersionCheck::downloadFinished, Qt::QueuedConnection);
    localVersion = parseVersion(QCoreApplication::applicationVersion()).value_or(VersionNumber{});
}

void VersionCheck::check()
{
    AppSettings &settings = AppSettings::instance();
    // A manual check asks for test versions too, an automatic one never does; that is meant.
    const VersionQuery query{QString::fromLatin1(Configuration::updateHost), QCoreApplication::applicationVersion(),
                             settings.value(IsFirstStart, true).toBool(), QLocale::system().name(), beta || manual};
    if (!manual && isTimeStampOf(settings.value(VersionCheckTimeStamp, QVariant()).toString(), QDate::currentDate()))
        return;

    takeLimitedBody(network.get(QNetworkRequest(QUrl(query.address()))), body);
}

void VersionCheck::downloadFinished(QNetworkReply *reply)
{
    const QPointer<VersionCheck> self(this);
    if (reply->error() != QNetworkReply::NoError) {
        if (manual)
            showConnectionError();
        qDebug().noquote() << "*fail*version check failed";
        return;
    }

    const VersionReply newest = parseVersionReply(*body + reply->readAll());
    const auto version = parseVersion(newest.version);
    if (!version) {
        // Shown for an automatic check too, unlike an error of the network; that is meant.
        showConnectionError();
        return;
    }

    const DeleteIfStillThere guard{new QMessageBox(parentWidget())};
    QMessageBox &box = *guard.box;
    box.setWindowModality(Qt::WindowModal);
    withoutContextHelp(&box);
    // The name of another product of the maker, here and, spelt otherwise, in the text; both are meant.
    box.setWindowTitle(QLatin1String("BrimTale ") + QCoreApplication::applicationVersion());
    if (*version > localVersion)
        showNewVersion(box, newest);
    else if (manual)
        showNoUpdates(box);
    if (!self)
        return;

    // After "No" too.
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(VersionCheckTimeStamp), timeStampOf(QDate::currentDate()));
    qDebug().noquote() << "*success*version check successful";
}

void VersionCheck::showNoUpdates(QMessageBox &box)
{
    const QPointer<VersionCheck> self(this);
    box.setStandardButtons(QMessageBox::Ok);
    box.button(QMessageBox::Ok)->setText(tr("Okay"));
    box.setText(tr("No updates are available."));
    box.setIcon(QMessageBox::Information);
    box.exec();
    if (self)
        manual = false;
}

void VersionCheck::showNewVersion(QMessageBox &box, const VersionReply &newest)
{
    box.setText(harmlessHtml(tr("New version available:") + QLatin1String(" <b>Brimtale ") +
                             shortened(newest.version, 100) + QLatin1String("</b>")));
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.setIcon(QMessageBox::Question);
    // As a whole, since a tag may begin in one value and end in another.
    const QString log = shortened(newest.log, 1000);
    box.setInformativeText(harmlessHtml(QLatin1String("<b style=\"color:#444\">") + shortened(newest.changes, 4000) +
                                        QLatin1String("</b><br/>") + QLatin1String("<a href=") + log +
                                        QLatin1Char('>') + log + QLatin1String("</a><br/><br/>") +
                                        tr("Do you want to download the latest version from our website?")));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.button(QMessageBox::Yes)->setText(tr("Yes"));
    box.button(QMessageBox::No)->setText(tr("No"));
    box.setDefaultButton(QMessageBox::Yes);
    openLinksCarefully(box);
    if (box.exec() == QMessageBox::Yes)
        openAddress(newest.url);
}

void VersionCheck::showConnectionError()
{
    const DeleteIfStillThere guard{new QMessageBox(
        QMessageBox::Warning, tr("Version check failed"),
        tr("Could not connect to server.") + QLatin1Char('\n') +
            tr("Please check your internet/firewall settings or look for yourself at: %1 for a new version.")
                .arg(QString::fromLatin1(Configuration::webAddress)),
        QMessageBox::Ok, parentWidget())};
    guard.box->exec();
}

QWidget *VersionCheck::parentWidget() const
{
    return qobject_cast<QWidget *>(parent());
}
