#pragma once

#include <QMouseEvent>

/// Where on the screen a mouse event happened; the two major versions of the toolkit name it differently.
inline QPoint globalPosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}
