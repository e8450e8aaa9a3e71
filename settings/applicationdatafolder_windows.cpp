#include "settings/applicationdatafolder.h"

#include <QDir>

#include <windows.h>
// After the header that it needs.
#include <shlobj.h>

QString applicationDataFolder()
{
    wchar_t buffer[MAX_PATH] = {};
    SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, buffer); // on failure the buffer stays empty
    return QDir::fromNativeSeparators(QString::fromWCharArray(buffer));
}
