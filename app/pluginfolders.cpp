#include "app/pluginfolders.h"

#include "app/programfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

// When the application object is made, the toolkit adds the program's folder to its list, and takes off again what has
// been taken off before. So the folder is put there first, which only the environment can do.
void loadNoPluginsFromProgramFolder()
{
    const ProgramFolder folder;
    if (folder.name().isEmpty())
        return;
    const char *const variable = "QT_PLUGIN_PATH";
    const bool isSet = qEnvironmentVariableIsSet(variable);
    const QByteArray before = qgetenv(variable);

    const char separator = QDir::listSeparator().toLatin1();
    qputenv(variable, before.isEmpty() ? folder.name() : before + separator + folder.name());
    QStringList folders = QCoreApplication::libraryPaths();
    if (isSet)
        qputenv(variable, before);
    else
        qunsetenv(variable);

    folders.removeAll(QDir(QFile::decodeName(folder.name())).canonicalPath());
    QCoreApplication::setLibraryPaths(folders);
}
