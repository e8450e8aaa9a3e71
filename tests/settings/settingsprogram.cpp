#include "settings/datadirectory.h"
#include "settings/replacefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include <cstdio>

namespace {

int print(const QByteArray &text)
{
    std::puts(text.constData());
    return 0;
}

int selectDirectory()
{
    try {
        return DataDirectory::select() ? print("selected " + QDir::currentPath().toUtf8()) : 1;
    } catch (const char *text) {
        return print("thrown " + QByteArray(text));
    }
}

// Saves one of two contents after the other until the process is killed.
int replaceForEver(const QString &fileName, int sizeOfA, int sizeOfB)
{
    const QByteArray a(sizeOfA, 'a');
    const QByteArray b(sizeOfB, 'b');
    print("running");
    std::fflush(stdout);
    for (;;) {
        replaceFile(fileName, a);
        replaceFile(fileName, b);
    }
}

int replaceOnce(const QString &fileName, int size)
{
    switch (replaceFile(fileName, QByteArray(size, 'n'))) {
    case ReplaceResult::Replaced:
        return print("replaced");
    case ReplaceResult::NotOpened:
        return print("not opened");
    case ReplaceResult::NotWritten:
        return print("not written");
    }
    return 1;
}

} // namespace

/// settingsprogram select | replace FILE SIZE SIZE | once FILE SIZE
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const QString command = words.value(1);
    if (command == QLatin1String("select"))
        return selectDirectory();
    if (command == QLatin1String("replace"))
        return replaceForEver(words.value(2), words.value(3).toInt(), words.value(4).toInt());
    if (command == QLatin1String("once"))
        return replaceOnce(words.value(2), words.value(3).toInt());
    return 2;
}
