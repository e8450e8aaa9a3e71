#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

/// The records of a file in the format of NIST's response files: lines "Name = value", records separated by an empty
/// line, comments after "#". A record that holds no digest (a heading, a seed) is there like any other.
QList<QMap<QByteArray, QByteArray>> readVectorFile(const QString &fileName);

/// The message of a record: "Msg", cut to the "Len" bits that count (an empty message is written as one zero byte).
QByteArray messageOf(const QMap<QByteArray, QByteArray> &record);
