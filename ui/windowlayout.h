#pragma once

#include <QByteArray>
#include <QString>

/// Whether bytes are what QMainWindow::saveState(0) gives for a window with this tool bar, no other, and no dock. The
/// toolkit believes whatever else it is given, numbers of tool bars included, and can be at it for hours.
bool isSoundLayout(const QByteArray &state, const QString &toolBar);
