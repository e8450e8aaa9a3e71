#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "checksum/filechecksum.h"
#include "configuration.h"
#include "ui/dialogoptions.h"
#include "ui/dropforwarder.h"

#include <QDesktopServices>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QMimeData>
#include <QPixmap>
#include <QStatusTipEvent>
#include <QUrl>

namespace {

const QString neutral = QStringLiteral("color:#444");
const QString information = QStringLiteral("color:#33a");
const QString valid = QStringLiteral("color:#3a3");
const QString invalid = QStringLiteral("color:#a33");

} // namespace

MainWindow::MainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
    , ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    makeAccessible();

    auto *drops = new DropForwarder(this, this);
    for (QWidget *widget : {static_cast<QWidget *>(ui->groupBox), static_cast<QWidget *>(ui->lineEditPath),
                            static_cast<QWidget *>(ui->lineEditCheckSumOut)})
        drops->watch(widget);
}

MainWindow::~MainWindow()
{
    updateTimer.stop();
    storeSettings();
}

void MainWindow::initWindow()
{
    showVerdictIcon(QString());
    // Two blanks after MD5, so that the two texts line up.
    ui->comboBox->addItem(QStringLiteral("MD5  (Message-Digest Algorithm)"), md5Algorithm);
    ui->comboBox->addItem(QStringLiteral("SHA-1 (Secure Hashing Algorithm)"), sha1Algorithm);
    connect(ui->lineEditCheckSumIn, &QLineEdit::textChanged, this, &MainWindow::updateChecksumIn);
    connect(ui->lineEditPath, &QLineEdit::returnPressed, this, &MainWindow::lineEditEnter);
    connect(ui->comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this, &MainWindow::comboBoxChanged);
    restoreSettings();
    ui->statusbar->setStyleSheet(neutral);
}

void MainWindow::calculateChecksum(const QString &path)
{
    // The verdict is brought up to date before anything changes and again afterwards; both are meant.
    updateChecksumIn(QString());
    // Whether the file exists is asked for an empty path only; any other that names no file fails to open. Meant.
    if (path.isEmpty() && !QFile::exists(path))
        return;

    ui->lineEditPath->setText(path);
    try {
        ui->lineEditCheckSumOut->setText(fileChecksum(ui->comboBox->currentData(Qt::UserRole).toInt(), path));
        updateChecksumIn(QString());
    } catch (const QString &text) {
        // The checksum of the file before stays where it is, and so does its icon; this is meant.
        showStatus(text, 0, information);
    }
}

// The argument plays no part: both fields are read afresh.
void MainWindow::updateChecksumIn(const QString &)
{
    const QString computed = ui->lineEditCheckSumOut->text();
    const QString expected = ui->lineEditCheckSumIn->text();
    if (expected.isEmpty() || computed.isEmpty()) {
        showStatus(tr("Two checksums are needed for verification.."), 2000, information);
        showVerdictIcon(QString());
    } else if (computed.toLower() == expected.toLower()) {
        showStatus(tr("VALID - Checksums do match"), 0, valid);
        showVerdictIcon(QStringLiteral(":/img/enable.png"));
    } else {
        showStatus(tr("INVALID - Checksums do not match"), 0, invalid);
        showVerdictIcon(QStringLiteral(":/img/disable.png"));
    }
}

// The colour takes the place of the status bar's whole style sheet; its font is the one the form gave it.
void MainWindow::showStatus(const QString &text, int timeout, const QString &color)
{
    ui->statusbar->showMessage(text, timeout);
    ui->statusbar->setStyleSheet(color);
}

void MainWindow::showVerdictIcon(const QString &fileName)
{
    ui->labelValid->setPixmap(QPixmap(fileName)); // a null one for no name
}

// The button in the tool bar belongs to the action, so that the form cannot name it nor let the keyboard reach it.
void MainWindow::makeAccessible()
{
    QWidget *button = ui->toolBar->widgetForAction(ui->actionConfig);
    button->setAccessibleName(ui->actionConfig->statusTip());
    button->setFocusPolicy(Qt::TabFocus);
}

void MainWindow::lineEditEnter()
{
    calculateChecksum(ui->lineEditPath->text());
}

void MainWindow::comboBoxChanged(int)
{
    calculateChecksum(ui->lineEditPath->text());
}

void MainWindow::on_toolButtonFolder_clicked()
{
    // Always the folder "desktop", spelt so, whatever the desktop's folder is called; this is meant.
    calculateChecksum(QFileDialog::getOpenFileName(this, tr("Select target file"),
                                                   QDir::homePath() + QLatin1String("/desktop"),
                                                   tr("All files") + QLatin1String(" (*.*)")));
}

void MainWindow::on_actionConfig_triggered()
{
    DialogOptions dialog(this, Qt::Dialog);
    dialog.exec();
}

void MainWindow::on_pushButtonWebsite_clicked()
{
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(Configuration::webAddress)));
}

bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::StatusTip) {
        showStatus(static_cast<QStatusTipEvent *>(event)->tip(), 0, neutral);
        event->accept();
    }
    return QMainWindow::event(event);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() != QEvent::LanguageChange) {
        QWidget::changeEvent(event);
        return;
    }
    // Empties both checksums too; this is meant.
    ui->retranslateUi(this);
    makeAccessible();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!event->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
        return;
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && QFile::exists(urls.first().toLocalFile()))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty())
        return;
    calculateChecksum(urls.first().toLocalFile());
    event->acceptProposedAction();
}
