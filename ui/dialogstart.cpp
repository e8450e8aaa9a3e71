#include "ui/dialogstart.h"

#include "ui_dialogstart.h"

#include "configuration.h"
#include "locale/languagemanager.h"
#include "settings/appsettings.h"
#include "ui/faderwidget.h"
#include "ui/globalposition.h"
#include "ui/visualstyle.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

// Shown without the scheme.
QString link(const QString &path)
{
    const QString scheme = QStringLiteral("http://");
    const QString address = QString::fromLatin1(Configuration::webAddress) + path;
    return QLatin1String("<a href='") + address + QLatin1String("'>") + address.mid(scheme.size()) +
           QLatin1String("</a>");
}

} // namespace

DialogStart::DialogStart(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , ui(std::make_unique<Ui::DialogStart>())
{
    ui->setupUi(this);
    ui->stackedWidget->setCurrentIndex(0);
    VisualStyle::makeSelectionReadable(ui->listLocale);
    showWelcomeText();
    connect(ui->listLocale, &QTreeWidget::itemSelectionChanged, this, &DialogStart::retranslate);
    connect(ui->buttonNext, &QPushButton::clicked, this, &DialogStart::buttonNextPressed);
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &DialogStart::fadeInWidget);
    // After the connection, so that the language selected here is stored and activated; this is meant.
    LanguageManager::instance().fillLanguageTree(ui->listLocale);
    ui->buttonNext->setFocus();
    show();
}

DialogStart::~DialogStart()
{
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(VersionCheckAuto), ui->checkBoxFinal->isChecked());
}

void DialogStart::retranslate()
{
    LanguageManager::instance().selectLanguage(ui->listLocale->currentItem()->text(0));
    showWelcomeText();
}

// The paragraph of the translators is closed only at the end; this is meant.
void DialogStart::showWelcomeText()
{
    ui->textBrowser->setHtml(
        QLatin1String("<span style='font-weight:bold;color:#333;font-size:14px'>") + QLatin1String("<h3>") +
        tr("We would like to thank you for your confidence and hope you'll enjoy our software.") +
        QLatin1String("</h3>") + QLatin1String("<p>") + tr("Discover more products from us:") + QLatin1String("<br/>") +
        link(QStringLiteral("/products")) + QLatin1String("</p>") + QLatin1String("<p>") +
        tr("We are looking for native speaking translators.") + QLatin1String("<br/>") + tr("Please contact us at: ") +
        QLatin1String("<br/>") + link(QStringLiteral("/contact")) + QLatin1String("</p></span>"));
}

void DialogStart::buttonNextPressed()
{
    if (ui->stackedWidget->currentIndex() == 0) {
        ui->stackedWidget->setCurrentIndex(1);
    } else {
        finished = true;
        close();
    }
}

void DialogStart::fadeInWidget(int index)
{
    if (faderWidget)
        faderWidget->close();
    // No colour at all; what the toolkit makes of it is meant.
    faderWidget = new FaderWidget(ui->stackedWidget->widget(index), QColor());
    faderWidget->start();
}

void DialogStart::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        dragPosition = globalPosition(event) - frameGeometry().topLeft();
        event->accept();
    }
}

void DialogStart::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        move(globalPosition(event) - dragPosition);
        event->accept();
    }
}

// No key closes the dialog; those of its widgets work in them.
void DialogStart::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        event->ignore();
}

void DialogStart::closeEvent(QCloseEvent *event)
{
    if (!finished)
        event->ignore();
}

void DialogStart::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}
