#include "checksum/filechecksum.h"
#include "tests/support/otherprograms.h"

#include <QCryptographicHash>
#include <QFile>
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

} // namespace

class TestFileChecksum final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

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
        // Reading this pipe would wait for ever: it is open for writing here, and nothing is ever written.
        const QByteArray pipe = m_folder.filePath(QStringLiteral("pipe")).toLocal8Bit();
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
        QFile holder(QString::fromLocal8Bit(pipe));
        QVERIFY(holder.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        QVERIFY(fileChecksum(2, QString::fromLocal8Bit(pipe)).isEmpty());
    }

    void whatCannotBeOpenedThrowsItsTextForEveryAlgorithm_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("missing file") << m_folder.filePath(QStringLiteral("no such file"));
        QTest::newRow("folder") << m_folder.path();
        QTest::newRow("empty name") << QString();
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
