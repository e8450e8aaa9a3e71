#include "ui/faderwidget.h"

#include <QPainter>
#include <QTimer>

#include <utility>

FaderWidget::FaderWidget(QWidget *parent, QColor color)
    : QWidget(parent)
    , timer(new QTimer(this))
    , startColor(std::move(color))
{
    connect(timer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(parent->size());
}

void FaderWidget::start()
{
    currentAlpha = 255;
    timer->start(10);
    show();
}

void FaderWidget::paintEvent(QPaintEvent *)
{
    QColor color = startColor;
    color.setAlpha(currentAlpha);
    QPainter(this).fillRect(rect(), color);

    // A quotient of two times, and not a share of the alphas: the number of paints is what counts. This is meant.
    currentAlpha -= duration / timer->interval();
    if (currentAlpha <= 0) {
        timer->stop();
        close();
    }
}
