#pragma once

#include <QPoint>
#include <QSize>

/// Where a window with this position is put on a desktop of this size, all screens together: where it is, or at
/// (50, 50) when it lies left of the desktop or above it, or within 50 pixels of its right or bottom edge or beyond.
QPoint reachablePosition(const QPoint &position, const QSize &desktop);
