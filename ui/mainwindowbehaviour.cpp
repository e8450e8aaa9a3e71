#include "ui_mainwindow.h"

#include "settings/appsettings.h"
#include "ui/dialogoptions.h"
#include "ui/globalposition.h"
#include "ui/mainwindow.h"
#include "ui/windowlayout.h"
#include "ui/windowmenu.h"
#include "ui/windowplace.h"
#include "update/versioncheck.h"
#include "update/versioncheckschedule.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QScreen>

// How the window behaves, whatever it shows: moving it, its menu, its settings and its timer.

namespace {

QByteArray storedBytes(SettingKey key)
{
    return QByteArray::fromHex(AppSettings::instance().value(key, QVariant()).toByteArray());
}

bool storedBool(SettingKey key, bool defaultValue)
{
    return AppSettings::instance().value(key, defaultValue).toBool();
}

void store(SettingKey key, const QVariant &value)
{
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(key), value);
}

} // namespace

void MainWindow::startUpdateTimer()
{
    connect(&updateTimer, &QTimer::timeout, this, &MainWindow::timerUpdate);
    updateTimer.start(200);
}

void MainWindow::timerUpdate()
{
    static VersionCheckSchedule schedule; // one for the process
    if (!schedule.tick() || !storedBool(VersionCheckAuto, true))
        return;
    auto *check = new VersionCheck(this, false);
    QTimer::singleShot(0, check, &VersionCheck::check);
}

// The window has no title bar to be moved by, so that its body serves as one.
void MainWindow::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        dragPosition = globalPosition(event) - frameGeometry().topLeft();
        event->accept();
    }
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (event->buttons() & Qt::LeftButton) {
        move(globalPosition(event) - dragPosition);
        event->accept();
    }
}

void MainWindow::contextMenuEvent(QContextMenuEvent *event)
{
    showWindowMenu(event, {tr("Opacity"), tr("Stay On Top")});
}

void MainWindow::showWindowMenu(QContextMenuEvent *event, const QStringList &labels)
{
    WindowMenu menu(this, labels, windowOpacity(), windowFlags() & Qt::WindowStaysOnTopHint);
    const auto choice = menu.choose(event->globalPos());
    if (!choice)
        return; // the event is not accepted then; this is meant

    // Counted from 1: four steps of the opacity, then stay on top.
    const int number = *choice + 1;
    if (number > 4) {
        setWindowFlags(windowFlags() ^ Qt::WindowStaysOnTopHint);
        show(); // new flags hide the window
    } else {
        setWindowOpacity(number * 0.25);
    }
    event->accept();
}

void MainWindow::restoreSettings()
{
    if (storedBool(IsFirstStart, true))
        resize(minimumSize());
    // One or the other, though both are stored; this is meant.
    if (storedBool(WindowRestoreGeometry, false))
        restoreWindowGeometry();
    else if (storedBool(WindowRestoreLayout, false))
        restoreLayout();
    storeOptions();
}

void MainWindow::restoreWindowGeometry()
{
    restoreGeometry(storedBytes(WindowGeometry));
    resize(size().expandedTo(minimumSizeHint())); // a damaged value can leave the window without any height
    // The whole desktop counts, not the free part of one screen.
    const QPoint place = reachablePosition(pos(), QGuiApplication::primaryScreen()->virtualSize());
    if (place != pos())
        move(place);
}

void MainWindow::restoreLayout()
{
    const QByteArray layout = storedBytes(WindowState);
    if (isSoundLayout(layout, ui->toolBar->objectName()))
        restoreState(layout, 0);
    if (!ui->toolBar->isFloating())
        return;
    // Beside the window it may have got any size and place.
    ui->toolBar->adjustSize();
    ui->toolBar->move(reachablePosition(ui->toolBar->pos(), QGuiApplication::primaryScreen()->virtualSize()));
}

void MainWindow::storeSettings()
{
    storeOptions();
    store(WindowStayOnTop, bool(windowFlags() & Qt::WindowStaysOnTopHint));
    store(WindowOpacity, opacityPercentage(windowOpacity()) / 100.0);
    setWindowOpacity(0.0); // gone at once, while the rest of the shutdown runs
    if (storedBool(WindowRestoreGeometry, false))
        store(WindowGeometry, saveGeometry().toHex());
    if (storedBool(WindowRestoreLayout, false))
        store(WindowState, saveState(0).toHex());
    store(IsFirstStart, false);
    AppSettings::instance().save();
}

// The dialog of the options, never shown, writes the settings behind its check boxes, with their defaults where there
// are none: once when told to and once more when it goes. This is meant.
void MainWindow::storeOptions()
{
    DialogOptions dialog(this, Qt::Dialog);
    dialog.storeSettings();
}
