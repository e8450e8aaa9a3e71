#include "update/processmemory.h"

#include <QByteArray>
#include <QFile>

#include <unistd.h>

qint64 processMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readLine().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}
