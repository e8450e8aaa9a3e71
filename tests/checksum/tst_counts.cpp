#include "checksum/filechecksum.h"
#include "checksum/md5digest.h"
#include "checksum/sha1.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>

#ifdef __SANITIZE_ADDRESS__
constexpr bool isInstrumented = true; // the sanitizer's own allocations and instructions would be counted
#else
constexpr bool isInstrumented = false;
#endif

namespace {

std::atomic<int> allocations{0};

// How often this process has read so far, by the kernel's account.
qint64 readsSoFar()
{
    QFile file(QStringLiteral("/proc/self/io"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray account = file.readAll();
    const auto start = account.indexOf("syscr: ") + 7;
    return account.mid(start, account.indexOf('\n', start) - start).toLongLong();
}

} // namespace

#ifndef __SANITIZE_ADDRESS__
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    ++allocations;
    return __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    ++allocations;
    return __libc_realloc(memory, size);
}
}
#endif

/// What makes the program fast, by counts that no other load of the machine can change.
class TestCounts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (isInstrumented)
            QSKIP("a sanitizer adds to every count");
    }

    void aFileIsReadInPiecesOf16Kilobytes_data()
    {
        QTest::addColumn<int>("algorithm");
        QTest::newRow("MD5") << static_cast<int>(md5Algorithm);
        QTest::newRow("SHA-1") << static_cast<int>(sha1Algorithm);
    }

    void aFileIsReadInPiecesOf16Kilobytes()
    {
        QFETCH(int, algorithm);
        constexpr int megabytes = 64;
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(megabytes * 1024 * 1024));
        file.close();

        const qint64 start = readsSoFar();
        const qint64 ofTheAccount = readsSoFar() - start;
        const qint64 before = readsSoFar();
        QVERIFY(!fileChecksum(algorithm, file.fileName()).isEmpty());
        const qint64 reads = readsSoFar() - before - ofTheAccount;
        QVERIFY2(reads >= megabytes * 64, qPrintable(QString::number(reads)));
        QVERIFY2(reads <= megabytes * 64 + 4, qPrintable(QString::number(reads))); // the end is met more than once
    }

    void updatingAllocatesNothing()
    {
        const std::uint8_t chunk[1024] = {};
        Md5Digest md5;
        Sha1Context sha1;
        sha1Starts(&sha1);
        std::uint8_t digest[20];

        const int atFirst = allocations;
        const QByteArray counted(1000, '\0');
        const int before = allocations;
        QVERIFY(before > atFirst); // they are counted
        for (const int length : {1, 63, 64, 1000, 1024}) {
            md5.update(chunk, static_cast<std::uint32_t>(length));
            sha1Update(&sha1, chunk, length);
        }
        sha1Finish(&sha1, digest);
        QCOMPARE(allocations.load(), before);
    }

    void aChunkTakesNoMoreInstructionsThanItDid_data()
    {
        QTest::addColumn<QString>("algorithm");
        QTest::addColumn<int>("most");
        // What g++ 12 makes of them, and a twentieth more; valgrind knows no SHA instructions, so SHA-1 is the portable
        // form.
        QTest::newRow("MD5") << QStringLiteral("md5") << 9975;
        QTest::newRow("SHA-1") << QStringLiteral("sha1") << 23300;
    }

    void aChunkTakesNoMoreInstructionsThanItDid()
    {
        QFETCH(QString, algorithm);
        QFETCH(int, most);
        qint64 counts[2] = {0, 0};
        for (int i = 0; i < 2; ++i) {
            QProcess valgrind;
            valgrind.start(QStringLiteral("valgrind"),
                           {QStringLiteral("--tool=callgrind"), QStringLiteral("--callgrind-out-file=/dev/null"),
                            QStringLiteral(ORVANTA_DIGEST_CHUNKS), algorithm, QString::number(1000 * (i + 1))});
            QVERIFY(valgrind.waitForFinished(120000));
            const QString text = QString::fromLocal8Bit(valgrind.readAllStandardError());
            const QRegularExpression collected(QStringLiteral("Collected : (\\d+)"));
            counts[i] = collected.match(text).captured(1).toLongLong();
            QVERIFY2(counts[i] > 0, qPrintable(text));
        }
        const auto perChunk = static_cast<int>((counts[1] - counts[0]) / 1000);
        QVERIFY2(perChunk <= most, qPrintable(QString::number(perChunk)));
        QVERIFY2(perChunk > most / 2, qPrintable(QString::number(perChunk))); // it is the digest that is counted
    }
};

QTEST_APPLESS_MAIN(TestCounts)
#include "tst_counts.moc"
