#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>

class FaderWidget;
class QUrl;

namespace Ui {
class DialogOptions;
}

/// The program's settings. Its check boxes are read from the settings when it is made and written back when it goes,
/// shown or not; there is no Cancel. A language chosen in its list takes effect at once.
class DialogOptions final : public QDialog
{
    Q_OBJECT

public:
    DialogOptions(QWidget *parent, Qt::WindowFlags flags);
    ~DialogOptions() override;

    /// Writes the check boxes to the settings.
    void storeSettings();

public Q_SLOTS:
    void retranslate();
    void on_pushButtonUpdate_clicked();
    void showRestartHint();
    void on_textBrowser_anchorClicked(const QUrl &url);
    void fadeInWidget(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void loadSettings();
    void widenGroupBoxes();

    std::unique_ptr<Ui::DialogOptions> ui;
    QPointer<FaderWidget> faderWidget;
};
