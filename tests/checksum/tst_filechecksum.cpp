#include "checksum/filechecksum.h"
#include "tests/support/otherprograms.h"

#include <QCryptographicHash>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <unistd.h>
#include <utility>

namespace {

QString expectedMd5(const QByteArray &content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex());
}

QString expectedSha1(const QByteArray &content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex().toUpper());
}

// What fileChecksum() throws, or a text saying that it threw no text.
QString thrownText(ChecksumAlgorithm algorithm, const QString &fileName)
{
    try {
        fileChecksum(algorithm, fileName);
    } catch (const QString &text) {
        return text;
    }
    return QStringLiteral("nothing was thrown");
}

qint64 bytesReadByThisProcess()
{
    QFile file(QStringLiteral("/proc/self/io"));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("cannot see what this process reads", __FILE__, __LINE__);
    const QByteArray firstLine = file.readLine(); // "rchar: NUMBER"
    return firstLine.mid(firstLine.indexOf(' ')).trimmed().toLongLong();
}

} // namespace

class TestFileChecksum final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QLocalServer m_server;

    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
        return file.fileName();
    }

private Q_SLOTS:
    void anEmptyFileHasTheDigestsOfNothing()
    {
        const QString file = write(QStringLiteral("empty"), {});
        QCOMPARE(fileChecksum(md5Algorithm, file), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
        QCOMPARE(fileChecksum(sha1Algorithm, file), QStringLiteral("DA39A3EE5E6B4B0D3255BFEF95601890AFD80709"));
    }

    void sizesAroundTheReadBufferAreHashedWhole()
    {
        for (const int size : {1, 1023, 1024, 1025, 2048, 16383, 16384, 16385, 100000}) {
            QByteArray content;
            for (int i = 0; i < size; ++i)
                content.append(static_cast<char>(i * 31));
            const QString file = write(QStringLiteral("sized"), content);
            QCOMPARE(fileChecksum(md5Algorithm, file), expectedMd5(content));
            QCOMPARE(fileChecksum(sha1Algorithm, file), expectedSha1(content));
        }
    }

    void lineEndsAreNotTranslated()
    {
        const QByteArray content("one\r\ntwo\nthree\r\x1a four");
        const QString file = write(QStringLiteral("lines"), content);
        QCOMPARE(fileChecksum(md5Algorithm, file), expectedMd5(content));
    }

    void randomFilesAgreeWithOtherPrograms()
    {
        const auto seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        for (int i = 0; i < 20; ++i) {
            QByteArray content(random.bounded(200000), Qt::Uninitialized);
            for (char &byte : content)
                byte = static_cast<char>(random.bounded(256));
            const QString file = write(QStringLiteral("random"), content);
            QCOMPARE(fileChecksum(md5Algorithm, file).toLatin1(), checksumBy(QStringLiteral("md5sum"), file));
            QCOMPARE(fileChecksum(sha1Algorithm, file).toLatin1(),
                     checksumBy(QStringLiteral("sha1sum"), file).toUpper());
        }
    }

    void aFileThatReportsNoSizeIsReadToItsEnd()
    {
        const QString file = QStringLiteral("/proc/version");
        QCOMPARE(QFile(file).size(), 0);
        QCOMPARE(fileChecksum(md5Algorithm, file).toLatin1(), checksumBy(QStringLiteral("md5sum"), file));
        QCOMPARE(fileChecksum(sha1Algorithm, file).toLatin1(), checksumBy(QStringLiteral("sha1sum"), file).toUpper());
    }

    void aReadErrorEndsTheFileWithoutAWord()
    {
        // The first read of a process's own memory, at address 0, fails.
        QCOMPARE(fileChecksum(md5Algorithm, QStringLiteral("/proc/self/mem")), expectedMd5({}));
        QCOMPARE(fileChecksum(sha1Algorithm, QStringLiteral("/proc/self/mem")), expectedSha1({}));
    }

    void anUnknownAlgorithmGivesAnEmptyText()
    {
        const QString file = write(QStringLiteral("readable"), "abc");
        for (const ChecksumAlgorithm algorithm : {-1, 2, 99})
            QVERIFY(fileChecksum(algorithm, file).isEmpty());
    }

    void anUnknownAlgorithmReadsNothing()
    {
        const QString file = write(QStringLiteral("long"), QByteArray(1 << 20, 'x'));
        const qint64 before = bytesReadByThisProcess();
        QVERIFY(fileChecksum(2, file).isEmpty());
        QVERIFY(bytesReadByThisProcess() - before < (1 << 19));
    }

    void aBlockDeviceIsReadToItsEnd()
    {
        const QByteArray content(1 << 20, 'b');
        const QString file = write(QStringLiteral("image"), content);
        QProcess losetup;
        losetup.start(QStringLiteral("losetup"), {QStringLiteral("--find"), QStringLiteral("--show"), file});
        if (!losetup.waitForFinished() || losetup.exitCode() != 0)
            QSKIP("This user or this machine can make no block device.");
        const QString device = QString::fromLocal8Bit(losetup.readAllStandardOutput()).trimmed();
        const QString computed = fileChecksum(md5Algorithm, device);
        QCOMPARE(QProcess::execute(QStringLiteral("losetup"), {QStringLiteral("--detach"), device}), 0);
        QCOMPARE(computed, expectedMd5(content));
    }

    void whatCannotBeOpenedThrowsItsTextForEveryAlgorithm_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("missing file") << m_folder.filePath(QStringLiteral("no such file"));
        QTest::newRow("folder") << m_folder.path();
        QTest::newRow("empty name") << QString();
        QTest::newRow("endless device") << QStringLiteral("/dev/zero");
        QTest::newRow("terminal") << QStringLiteral("/dev/ptmx");
        const QString pipe = m_folder.filePath(QStringLiteral("pipe"));
        ::mkfifo(QFile::encodeName(pipe).constData(), 0600);
        QTest::newRow("pipe without a writer") << pipe;
        const QString link = m_folder.filePath(QStringLiteral("link to a pipe"));
        QFile::link(pipe, link);
        QTest::newRow("link to a pipe") << link;
        m_server.listen(m_folder.filePath(QStringLiteral("socket")));
        QTest::newRow("socket") << m_server.fullServerName();
        QTest::newRow("name in quotes") << QStringLiteral("\"%1\"").arg(write(QStringLiteral("quoted"), "abc"));
    }

    void whatCannotBeOpenedThrowsItsTextForEveryAlgorithm()
    {
        QFETCH(QString, fileName);
        for (const ChecksumAlgorithm algorithm : {0, 1, 2, -1})
            QCOMPARE(thrownText(algorithm, fileName), QStringLiteral("Could not open file.."));
    }

    void aFileWithoutReadPermissionThrowsItsTextForEveryAlgorithm()
    {
        const QString file = write(QStringLiteral("secret"), "abc");
        QCOMPARE(::chmod(QFile::encodeName(file).constData(), 0), 0);
        const uid_t user = ::geteuid();
        if (user == 0)
            QCOMPARE(::seteuid(65534), 0); // nothing is unreadable for root
        QStringList thrown;
        for (const ChecksumAlgorithm algorithm : {0, 1, 2, -1})
            thrown << thrownText(algorithm, file);
        QCOMPARE(::seteuid(user), 0);
        QCOMPARE(thrown.size(), 4);
        for (const QString &text : std::as_const(thrown))
            QCOMPARE(text, QStringLiteral("Could not open file.."));
    }

    void everyCallStartsAfresh()
    {
        const QString file = write(QStringLiteral("again"), "abc");
        for (int i = 0; i < 3; ++i)
            QCOMPARE(fileChecksum(md5Algorithm, file), QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
    }
};

QTEST_GUILESS_MAIN(TestFileChecksum)
#include "tst_filechecksum.moc"
