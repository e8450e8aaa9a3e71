#include "settings/applicationdatafolder.h"

#include <QStandardPaths>

QString applicationDataFolder()
{
    // $XDG_DATA_HOME, or ~/.local/share. The location made for applications would put their own names below it.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}
