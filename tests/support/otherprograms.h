#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The checksum of a file by another program, md5sum or sha1sum: lower-case digits. Fails the running test and returns
/// nothing if that program fails.
QByteArray checksumBy(const QString &program, const QString &fileName);

/// The checksum that md5sum or sha1sum finds for `length` zero bytes.
QByteArray zerosChecksumBy(const QString &program, qint64 length);

/// A command as it is to be started so that the permissions of files bind it: nothing is forbidden to root, but for a
/// process without these two privileges.
QStringList boundByPermissions(const QStringList &command);
