#include "checksum/filechecksum.h"
#include "checksum/md5digest.h"
#include "checksum/sha1.h"
#include "tests/support/otherprograms.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

constexpr std::uint32_t mebibyte = 1024 * 1024;
const std::unique_ptr<std::uint8_t[]> zeros = std::make_unique<std::uint8_t[]>(mebibyte);

QByteArray md5OfZeros(qint64 length)
{
    Md5Digest digest;
    for (; length > 0; length -= mebibyte)
        digest.update(zeros.get(), static_cast<std::uint32_t>(std::min<qint64>(length, mebibyte)));
    std::int32_t status = 0;
    return QByteArray::fromStdString(digest.hexDigest(&status));
}

QByteArray sha1OfZeros(qint64 length)
{
    Sha1Context context;
    sha1Starts(&context);
    for (; length > 0; length -= mebibyte)
        sha1Update(&context, zeros.get(), static_cast<std::int32_t>(std::min<qint64>(length, mebibyte)));
    QByteArray digest(20, '\0');
    sha1Finish(&context, reinterpret_cast<std::uint8_t *>(digest.data()));
    return digest.toHex();
}

} // namespace

/// Messages whose length needs more than one word.
class TestHugeMessage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBitCountCarriesIntoItsSecondWord()
    {
        const qint64 length = (qint64(1) << 29) + 3;
        QCOMPARE(md5OfZeros(length), zerosChecksumBy(QStringLiteral("md5sum"), length));
        QCOMPARE(sha1OfZeros(length), zerosChecksumBy(QStringLiteral("sha1sum"), length));
    }

    void oneCallMayHoldMoreThanTheFirstWordCounts()
    {
        const std::uint32_t length = (std::uint32_t(1) << 29) + 65;
        const std::unique_ptr<std::uint8_t[]> message(new std::uint8_t[length]());
        Md5Digest digest;
        digest.update(message.get(), length);
        std::int32_t status = 0;
        QCOMPARE(QByteArray::fromStdString(digest.hexDigest(&status)),
                 zerosChecksumBy(QStringLiteral("md5sum"), length));
        Sha1Context context;
        sha1Starts(&context);
        sha1Update(&context, message.get(), static_cast<std::int32_t>(length));
        QByteArray raw(20, '\0');
        sha1Finish(&context, reinterpret_cast<std::uint8_t *>(raw.data()));
        QCOMPARE(raw.toHex(), zerosChecksumBy(QStringLiteral("sha1sum"), length));
    }

    void aSparseFileOfMoreThanFourGibibytesIsHashedWhole()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("sparse")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const qint64 length = (qint64(1) << 32) + 5;
        QVERIFY(file.seek(length - 3));
        QCOMPARE(file.write("end"), qint64(3));
        file.close();
        QCOMPARE(file.size(), length);
        QCOMPARE(fileChecksum(md5Algorithm, file.fileName()).toLatin1(),
                 checksumBy(QStringLiteral("md5sum"), file.fileName()));
        QCOMPARE(fileChecksum(sha1Algorithm, file.fileName()).toLatin1(),
                 checksumBy(QStringLiteral("sha1sum"), file.fileName()).toUpper());
    }
};

QTEST_GUILESS_MAIN(TestHugeMessage)
#include "tst_hugemessage.moc"
