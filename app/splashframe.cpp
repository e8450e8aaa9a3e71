#include "app/splashframe.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFont>
#include <QPainter>
#include <QThread>
#include <QWindow>

namespace {

constexpr unsigned long splashMilliseconds = 1200;

// The picture's size as it appears: a picture for a dense screen has more pixels than that.
QSize sizeOf(const QPixmap &pixmap)
{
    return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

// Some display servers show a window only after a while, and what is painted before is lost. No one's input is looked
// at meanwhile.
void waitUntilExposed(const QWidget &window)
{
    const QDeadlineTimer deadline(1000);
    while (!deadline.hasExpired() && !(window.windowHandle() && window.windowHandle()->isExposed())) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
        QThread::msleep(1);
    }
}

} // namespace

SplashFrame::SplashFrame(QWidget *parent, const QPixmap &picture, Qt::WindowFlags flags)
    : QFrame(parent, flags)
    , pixmap(picture)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(sizeOf(pixmap));
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    setFont(bold);
}

void SplashFrame::setMessage(const QString &text, Qt::Alignment textAlignment, const QColor &textColor)
{
    message = text;
    alignment = textAlignment;
    color = textColor;
}

void SplashFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), pixmap);
    painter.setPen(color);
    painter.drawText(rect().adjusted(0, 0, -28, -20), static_cast<int>(alignment), message);
}

void showSplash(const QString &message, const QPixmap &pixmap)
{
    SplashFrame splash(QApplication::activeWindow(), pixmap,
                       Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    splash.setWindowModality(Qt::WindowModal);
    splash.show();
    splash.activateWindow();
    splash.setMessage(message, Qt::AlignRight | Qt::AlignBottom, QColor(QStringLiteral("#444")));
    waitUntilExposed(splash);
    splash.repaint();
    QThread::msleep(splashMilliseconds);
    splash.setWindowOpacity(0.0);
}
