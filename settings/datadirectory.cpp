#include "settings/datadirectory.h"

#include "settings/applicationdatafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

bool isPortable(const QString &programFolder)
{
    return QFile::exists(programFolder + QLatin1String("/portable")) ||
           QFile::exists(programFolder + QLatin1String("/portable.txt"));
}

bool canBeWritten(const QString &folder)
{
    QFile probe(folder + QLatin1String("/writable"));
    return probe.open(QIODevice::WriteOnly) && probe.remove();
}

QString portableDirectory(const QString &programFolder)
{
    if (!canBeWritten(programFolder))
        throw "You must have write permission to the application directory for portable use.";
    return programFolder;
}

QString perUserDirectory()
{
    // Where the platform names no folder, this is one below the current directory.
    QString directory = QDir(applicationDataFolder()).path() + QLatin1String("/Kelvory/Orvanta");
    if (!QDir(directory).exists())
        QDir().mkpath(directory);
    return directory;
}

} // namespace

bool DataDirectory::select()
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    QDir::setCurrent(isPortable(programFolder) ? portableDirectory(programFolder) : perUserDirectory());
    return true;
}
