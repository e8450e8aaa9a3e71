#pragma once

#include <QDialog>
#include <QPoint>
#include <QPointer>

#include <memory>

class FaderWidget;

namespace Ui {
class DialogStart;
}

/// The dialog of the first start: choose a language, then read the welcome. It cannot be closed before its end, and it
/// is moved by its body. When it goes, it writes its check box to the settings.
class DialogStart final : public QDialog
{
    Q_OBJECT

public:
    /// Shows itself. The language that is current in its list is stored and activated by that.
    DialogStart(QWidget *parent, Qt::WindowFlags flags);
    ~DialogStart() override;

public Q_SLOTS:
    void retranslate();
    void buttonNextPressed();
    void fadeInWidget(int index);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showWelcomeText();

    std::unique_ptr<Ui::DialogStart> ui;
    QPointer<FaderWidget> faderWidget;
    bool finished = false; ///< whether it may close
    QPoint dragPosition;   ///< from the frame's corner to where the left button went down
};
