#include "checksum/contentfile.h"

#include <QFile>

#include <io.h>
#include <windows.h>

// Only what is open has a kind here. Drives and volumes count as disks, too.
bool openContent(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    if (GetFileType(handle) != FILE_TYPE_DISK) {
        file.close();
        return false;
    }
    return true;
}
