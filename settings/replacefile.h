#pragma once

#include <QByteArray>
#include <QString>

enum class ReplaceResult
{
    Replaced,
    NotOpened,  ///< there is no writing to it
    NotWritten, ///< not all bytes could be written, as on a full disk
};

/// Gives a file new content, as a whole or not at all: whenever the process ends or the disk is full, the file has
/// either all of its old content or all of the new. Where the folder cannot be written but the file can, the file is
/// overwritten in place; then this holds for a full disk, but not for a process killed in the middle. A file that has
/// this content already, and could be written, is left as it is.
ReplaceResult replaceFile(const QString &fileName, const QByteArray &content);
