#include "app/pluginfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <array>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The program's own folder while this object lives, by a name that can stand in a list of folders. The folder itself
/// may be called anything; its descriptor is a number.
class ProgramFolder final
{
public:
    ProgramFolder()
    {
        std::array<char, PATH_MAX> program = {};
        const ssize_t length = ::readlink("/proc/self/exe", program.data(), program.size());
        if (length <= 0)
            return;
        QByteArray folder(program.data(), static_cast<int>(length));
        folder.truncate(folder.lastIndexOf('/') + 1);
        descriptor = ::open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    }
    ~ProgramFolder() { ::close(descriptor); }
    Q_DISABLE_COPY(ProgramFolder)

    bool isOpen() const { return descriptor >= 0; }
    QByteArray name() const { return "/proc/self/fd/" + QByteArray::number(descriptor); }

private:
    int descriptor = -1;
};

} // namespace

// When the application object is made, the toolkit adds the program's folder to its list, and takes off again what has
// been taken off before. So the folder is put there first, which only the environment can do.
void loadNoPluginsFromProgramFolder()
{
    const ProgramFolder folder;
    if (!folder.isOpen())
        return;
    const char *const variable = "QT_PLUGIN_PATH";
    const bool isSet = qEnvironmentVariableIsSet(variable);
    const QByteArray before = qgetenv(variable);

    qputenv(variable, before.isEmpty() ? folder.name() : before + ':' + folder.name());
    QStringList folders = QCoreApplication::libraryPaths();
    if (isSet)
        qputenv(variable, before);
    else
        qunsetenv(variable);

    folders.removeAll(QDir(QFile::decodeName(folder.name())).canonicalPath());
    QCoreApplication::setLibraryPaths(folders);
}
