#include "tests/support/otherprograms.h"

#include <QProcess>
#include <QTest>

#include <unistd.h>

namespace {

QByteArray firstWordOf(const QString &shellCommand, const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("sh"),
                  QStringList{QStringLiteral("-c"), shellCommand, QStringLiteral("sh")} + arguments);
    if (!process.waitForFinished(300000) || process.exitCode() != 0)
        QTest::qFail(("failed: " + shellCommand.toLocal8Bit()).constData(), __FILE__, __LINE__);
    return process.readAllStandardOutput().split(' ').value(0);
}

} // namespace

QByteArray checksumBy(const QString &program, const QString &fileName)
{
    return firstWordOf(QStringLiteral("exec \"$1\" < \"$2\""), {program, fileName});
}

QByteArray zerosChecksumBy(const QString &program, qint64 length)
{
    return firstWordOf(QStringLiteral("head -c \"$2\" /dev/zero | \"$1\""), {program, QString::number(length)});
}

QStringList boundByPermissions(const QStringList &command)
{
    if (::geteuid() != 0)
        return command;
    return QStringList{QStringLiteral("setpriv"), QStringLiteral("--bounding-set=-dac_override,-dac_read_search")} +
           command;
}
