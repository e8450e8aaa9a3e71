#include "checksum/md5digest.h"
#include "tests/support/vectorfile.h"

#include <QCryptographicHash>
#include <QTest>

namespace {

const std::uint8_t *bytesOf(const QByteArray &text)
{
    return reinterpret_cast<const std::uint8_t *>(text.constData());
}

QByteArray finish(Md5Digest &digest)
{
    std::int32_t status = 0;
    const std::string text = digest.hexDigest(&status);
    return status == 0 ? QByteArray::fromStdString(text) : QByteArray("status was set");
}

QByteArray digestInPieces(const QByteArray &message, int pieceLength)
{
    Md5Digest digest;
    for (int i = 0; i < message.size(); i += pieceLength) {
        const QByteArray piece = message.mid(i, pieceLength);
        digest.update(bytesOf(piece), static_cast<std::uint32_t>(piece.size()));
    }
    return finish(digest);
}

QByteArray digestOf(const QByteArray &message)
{
    return digestInPieces(message, qMax(1, static_cast<int>(message.size())));
}

QByteArray expectedDigest(const QByteArray &message)
{
    return QCryptographicHash::hash(message, QCryptographicHash::Md5).toHex();
}

} // namespace

class TestMd5Digest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSuiteOfTheStandardIsReproduced()
    {
        const auto records = readVectorFile(QStringLiteral(ORVANTA_TEST_DATA "/digests/rfc-1321.txt"));
        QCOMPARE(records.size(), 7);
        for (const auto &record : records)
            QCOMPARE(digestOf(messageOf(record)), record.value("MD"));
    }

    void anEmptyMessageHasItsDigest() { QCOMPARE(digestOf({}), QByteArray("d41d8cd98f00b204e9800998ecf8427e")); }

    void threeLettersHaveTheirDigest() { QCOMPARE(digestOf("abc"), QByteArray("900150983cd24fb0d6963f7d28e17f72")); }

    void aMillionLettersHaveTheirDigest()
    {
        QCOMPARE(digestOf(QByteArray(1000000, 'a')), QByteArray("7707d6ae4e027c70eea2a935c2296f21"));
    }

    void everyLengthUpToTwoBlocksAgreesWithAnotherImplementation()
    {
        QByteArray message;
        for (int length = 0; length <= 130; ++length) {
            QCOMPARE(message.size(), length);
            QCOMPARE(digestOf(message), expectedDigest(message));
            message.append(static_cast<char>(length * 7 + 1));
        }
    }

    void everyPairOfCutsOverThreeBlocksGivesTheSameDigest()
    {
        QByteArray message;
        for (int i = 0; i < 192; ++i)
            message.append(static_cast<char>(i * 37 + 11));
        const QByteArray expected = expectedDigest(message);
        for (std::uint32_t first = 0; first <= 192; ++first) {
            for (std::uint32_t second = first; second <= 192; ++second) {
                Md5Digest digest;
                digest.update(bytesOf(message), first);
                digest.update(bytesOf(message) + first, second - first);
                digest.update(bytesOf(message) + second, 192 - second);
                QCOMPARE(finish(digest), expected);
            }
        }
    }

    void piecesOfAnySizeGiveTheSameDigest()
    {
        for (const int length : {55, 56, 63, 64, 65, 4096}) {
            const QByteArray message(length, 'x');
            for (const int piece : {1, 63, 64, 1024})
                QCOMPARE(digestInPieces(message, piece), expectedDigest(message));
        }
    }

    void smallDigestBytesKeepBothDigits()
    {
        // The bytes 0x00, 0x0f and 0x10 turn up among a few thousand digests.
        qsizetype found[3] = {0, 0, 0};
        for (int i = 0; i < 4000; ++i) {
            const QByteArray message = QByteArray::number(i);
            const QByteArray text = digestOf(message);
            QCOMPARE(text, expectedDigest(message));
            QCOMPARE(text.size(), 32);
            const QByteArray raw = QByteArray::fromHex(text);
            found[0] += raw.count('\0');
            found[1] += raw.count('\x0f');
            found[2] += raw.count('\x10');
        }
        QVERIFY(found[0] > 0 && found[1] > 0 && found[2] > 0);
    }

    void transformChangesTheStateAlone()
    {
        // A block fed by hand is not counted, so the digest is not that of the block.
        const QByteArray block(64, 'b');
        Md5Digest byHand;
        byHand.transform(bytesOf(block));
        QVERIFY(finish(byHand) != expectedDigest(block));
    }

    void theStatusIsLeftAloneByAGoodDigest()
    {
        Md5Digest digest;
        std::int32_t status = 77;
        QCOMPARE(digest.hexDigest(&status).size(), std::size_t(32));
        QCOMPARE(status, 77);
    }
};

QTEST_GUILESS_MAIN(TestMd5Digest)
#include "tst_md5digest.moc"
