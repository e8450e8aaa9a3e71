#include "ui/dialogoptions.h"

#include "ui_dialogoptions.h"

#include "configuration.h"
#include "locale/languagemanager.h"
#include "settings/appsettings.h"
#include "ui/faderwidget.h"
#include "ui/shell.h"
#include "ui/visualstyle.h"
#include "update/versioncheck.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>

namespace {

QString link(const char *label, const QString &path)
{
    const QString address = QString::fromLatin1(Configuration::webAddress) + path;
    return QLatin1String(label) + QLatin1String("<a href='") + address + QLatin1String("'>") + address +
           QLatin1String("</a><br/>");
}

// Not translated. The paragraph of the links is not closed; that is meant.
QString aboutText()
{
    return QLatin1String("<div style='margin:4px;font-weight:bold'>") + QLatin1String("<h3>Orvanta</h3>") +
           QLatin1String("<p style='margin-top:0;'><span style='color:#666'>Version: </span>") +
           QCoreApplication::applicationVersion() + QLatin1String("</p>") +
           QLatin1String("<p><span style='color:#333'>OS Support</span><br/>"
                         "Windows 2000, XP, 2003, 2008, Vista, 7</p>") +
           QLatin1String("<p><span style='color:#333'>Links</span><br/>") + link("Home: ", QString()) +
           link("FAQ: ", QStringLiteral("/products/brimtale/faq")) + link("Feedback: ", QStringLiteral("/contact")) +
           QLatin1String("<p><span style='color:#333'>") + QStringLiteral("\u00a9 2026 Kelvory") +
           QLatin1String("<br/>") + QString::fromUtf8(Configuration::credit).toHtmlEscaped() +
           QLatin1String("</span></p>") + QLatin1String("</div>");
}

bool storedBool(SettingKey key, bool defaultValue)
{
    return AppSettings::instance().value(key, defaultValue).toBool();
}

void store(SettingKey key, bool value)
{
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(key), value);
}

} // namespace

DialogOptions::DialogOptions(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , ui(std::make_unique<Ui::DialogOptions>())
{
    ui->setupUi(this);
    ui->listWidget->setCurrentRow(0);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    LanguageManager::instance().fillLanguageTree(ui->listLocale);
    VisualStyle::makeSelectionReadable(ui->listLocale);
    loadSettings();
    // Only now, so that neither the first page fades in nor filling the list switches the language.
    connect(ui->listLocale, &QTreeWidget::itemSelectionChanged, this, &DialogOptions::retranslate);
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &DialogOptions::fadeInWidget);
    ui->textBrowser->setHtml(aboutText());
    widenGroupBoxes();
}

DialogOptions::~DialogOptions()
{
    storeSettings();
}

void DialogOptions::loadSettings()
{
    ui->checkBoxDisableSplash->setChecked(storedBool(DisableSplashScreen, false));
    ui->checkBoxFinal->setChecked(storedBool(VersionCheckAuto, true));
    ui->checkBoxRestoreLayout->setChecked(storedBool(WindowRestoreLayout, false));
    ui->checkBoxRestorePosition->setChecked(storedBool(WindowRestoreGeometry, false));
}

void DialogOptions::storeSettings()
{
    store(DisableSplashScreen, ui->checkBoxDisableSplash->isChecked());
    store(WindowRestoreLayout, ui->checkBoxRestoreLayout->isChecked());
    store(WindowRestoreGeometry, ui->checkBoxRestorePosition->isChecked());
    store(VersionCheckAuto, ui->checkBoxFinal->isChecked());
}

void DialogOptions::retranslate()
{
    LanguageManager::instance().selectLanguage(ui->listLocale->currentItem()->text(0));
}

void DialogOptions::changeEvent(QEvent *event)
{
    if (event->type() != QEvent::LanguageChange) {
        QDialog::changeEvent(event);
        return;
    }
    ui->retranslateUi(this);
    widenGroupBoxes();
    event->accept();
}

// Their smallest width is a fixed one, which a longer language exceeds.
void DialogOptions::widenGroupBoxes()
{
    for (QGroupBox *box : {ui->groupBox_5, ui->groupBoxUpdates})
        box->setMinimumWidth(qMax(320, box->minimumSizeHint().width()));
}

void DialogOptions::on_pushButtonUpdate_clicked()
{
    auto *check = new VersionCheck(this, true);
    QTimer::singleShot(0, check, &VersionCheck::check);
}

// Nothing calls this; it is kept for settings that take effect only after a restart.
void DialogOptions::showRestartHint()
{
    QMessageBox::information(this, QCoreApplication::applicationName(),
                             tr("Restart the application so the setting can take effect."));
}

// Every click arrives here, also on a link to the web: the browser follows none itself.
void DialogOptions::on_textBrowser_anchorClicked(const QUrl &url)
{
    if (url.scheme() == QLatin1String("http"))
        QDesktopServices::openUrl(url);
    else
        openWithShell(QDir(url.path()).canonicalPath());
}

void DialogOptions::fadeInWidget(int index)
{
    if (faderWidget)
        faderWidget->close();
    faderWidget = new FaderWidget(ui->stackedWidget->widget(index), QColor(QStringLiteral("#eee")));
    faderWidget->start();
}
