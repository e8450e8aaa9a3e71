#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <functional>

/// What a process that has ended took, and left.
struct MeasuredRun
{
    int exitCode;      ///< or -1000 when it was killed: by a signal, or by this after a minute
    double seconds;    ///< from start to end
    qint64 kibibytes;  ///< of memory in use at most
    QByteArray output; ///< what it wrote to standard error
};

/// Runs a command in a folder to its end. The words are bytes, since a name need not be text. `meanwhile` is called
/// once the process runs, with its number.
MeasuredRun measure(const QList<QByteArray> &command, const QProcessEnvironment &environment, const QString &folder,
                    const std::function<void(int)> &meanwhile = {});
