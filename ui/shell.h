#pragma once

#include <QString>

/// Asks the desktop to open a file or folder with whatever it opens such things with. Does nothing for an empty path.
void openWithShell(const QString &path);
