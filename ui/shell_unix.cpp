#include "ui/shell.h"

#include <QDesktopServices>
#include <QUrl>

void openWithShell(const QString &path)
{
    if (!path.isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}
