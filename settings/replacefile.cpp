#include "settings/replacefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

bool writeAll(QFileDevice &file, const QByteArray &content)
{
    // A full disk shows at the latest when the buffer is flushed; committing does not look at that.
    return file.write(content) == content.size() && file.flush() && file.error() == QFileDevice::NoError;
}

// Then there is nothing to be done: most runs change no setting, and a disk takes its time to be sure of what it wrote.
bool holdsAlready(const QFileInfo &info, const QByteArray &content)
{
    QFile file(info.filePath());
    return info.isWritable() && info.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.read(content.size() + 1) == content;
}

ReplaceResult overwriteInPlace(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadWrite))
        return ReplaceResult::NotOpened;

    // What the new content needs beyond the old is claimed first, while the old content still stands.
    const qint64 oldSize = file.size();
    if (content.size() > oldSize) {
        const QByteArray claim(content.size() - static_cast<int>(oldSize), ' ');
        if (!file.seek(oldSize) || !writeAll(file, claim)) {
            file.resize(oldSize);
            return ReplaceResult::NotWritten;
        }
    }
    if (!file.seek(0) || !writeAll(file, content) || !file.resize(content.size()))
        return ReplaceResult::NotWritten;
    return ReplaceResult::Replaced;
}

} // namespace

ReplaceResult replaceFile(const QString &fileName, const QByteArray &content)
{
    // A device or a pipe, perhaps behind a link, is not to be replaced by a file.
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile())
        return ReplaceResult::NotOpened;
    if (info.exists() && holdsAlready(info, content))
        return ReplaceResult::Replaced;

    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return info.exists() ? overwriteInPlace(fileName, content) : ReplaceResult::NotOpened;
    if (!writeAll(file, content)) {
        file.cancelWriting();
        return ReplaceResult::NotWritten;
    }
    return file.commit() ? ReplaceResult::Replaced : ReplaceResult::NotWritten;
}
