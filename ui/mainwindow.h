#pragma once

#include <QMainWindow>
#include <QPoint>
#include <QTimer>

#include <memory>

class QContextMenuEvent;
class QDragEnterEvent;
class QDropEvent;
class QMouseEvent;

namespace Ui {
class MainWindow;
}

/// The program's window: choose an algorithm, name a file, read its checksum, paste the published one, and see whether
/// they agree.
///
/// It reports only in its status bar. Its destructor writes the window's settings and saves them.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(QWidget *parent, Qt::WindowFlags flags);
    ~MainWindow() override;

    /// The rest of the construction, to be done after the first-start dialog and before the window is shown.
    void initWindow();

    /// Takes a path as the target file and shows its checksum. An empty path only refreshes the verdict.
    void calculateChecksum(const QString &path);

    /// Starts the timer of 200 ms behind timerUpdate().
    void startUpdateTimer();

    bool event(QEvent *event) override;

public Q_SLOTS:
    // In this order, the two handlers of the mouse among them: they can be invoked by index.
    void on_toolButtonFolder_clicked();
    void updateChecksumIn(const QString &);
    void lineEditEnter();
    void comboBoxChanged(int);
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void timerUpdate();
    void on_actionConfig_triggered();
    void on_pushButtonWebsite_clicked();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showWindowMenu(QContextMenuEvent *event, const QStringList &labels);
    void showStatus(const QString &text, int timeout, const QString &color);
    void showVerdictIcon(const QString &fileName);
    void makeAccessible();
    void restoreSettings();
    void restoreWindowGeometry();
    void restoreLayout();
    void storeSettings();
    void storeOptions();

    std::unique_ptr<Ui::MainWindow> ui;
    QPoint dragPosition; ///< from the frame's corner to where the left button went down
    QTimer updateTimer;
};
