#include "tests/support/vectorfile.h"

#include <QFile>

#include <stdexcept>

QList<QMap<QByteArray, QByteArray>> readVectorFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no vector file " + fileName.toStdString());

    QList<QMap<QByteArray, QByteArray>> records;
    QMap<QByteArray, QByteArray> record;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.isEmpty() && !record.isEmpty()) {
            records.append(record);
            record.clear();
        }
        const auto sign = line.indexOf('=');
        if (sign > 0 && !line.startsWith('#') && !line.startsWith('['))
            record.insert(line.left(sign).trimmed(), line.mid(sign + 1).trimmed());
    }
    if (!record.isEmpty())
        records.append(record);
    return records;
}

QByteArray messageOf(const QMap<QByteArray, QByteArray> &record)
{
    return QByteArray::fromHex(record.value("Msg")).left(record.value("Len").toInt() / 8);
}
