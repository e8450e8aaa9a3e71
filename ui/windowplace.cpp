#include "ui/windowplace.h"

QPoint reachablePosition(const QPoint &position, const QSize &desktop)
{
    const bool isReachable = position.x() >= 0 && position.y() >= 0 && position.x() <= desktop.width() - 50 &&
                             position.y() <= desktop.height() - 50;
    return isReachable ? position : QPoint(50, 50);
}
