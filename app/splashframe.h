#pragma once

#include <QColor>
#include <QFrame>
#include <QPixmap>
#include <QString>

/// A picture in a window of its own, with a message in front of it.
class SplashFrame final : public QFrame
{
    Q_OBJECT

public:
    SplashFrame(QWidget *parent, const QPixmap &picture, Qt::WindowFlags flags);

    /// Takes effect with the next repaint.
    void setMessage(const QString &text, Qt::Alignment textAlignment, const QColor &textColor);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap pixmap;
    QString message;
    Qt::Alignment alignment;
    QColor color;
};

/// Shows the splash for a fixed time, in front of the active window. Blocks for that long; no events are processed.
void showSplash(const QString &message, const QPixmap &pixmap);
