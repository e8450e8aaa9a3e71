#include "checksum/contentfile.h"

#include <QFile>

#include <sys/stat.h>

// Asked before the file is opened: opening a pipe waits for somebody who writes, and opening a device may set it in
// motion. What this platform cannot find is left to the toolkit, which has files of its own.
bool openContent(QFile &file)
{
    struct stat status = {};
    const bool isFound = ::stat(QFile::encodeName(file.fileName()).constData(), &status) == 0;
    if (isFound && !S_ISREG(status.st_mode) && !S_ISBLK(status.st_mode))
        return false;
    return file.open(QIODevice::ReadOnly);
}
