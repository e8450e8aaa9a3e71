#include "checksum/sha1.h"
#include "tests/support/vectorfile.h"

#include <QCryptographicHash>
#include <QTest>

namespace {

const std::uint8_t *bytesOf(const QByteArray &text)
{
    return reinterpret_cast<const std::uint8_t *>(text.constData());
}

QByteArray finish(Sha1Context &context)
{
    QByteArray digest(20, '\0');
    sha1Finish(&context, reinterpret_cast<std::uint8_t *>(digest.data()));
    return digest;
}

QByteArray digestInPieces(const QByteArray &message, int pieceLength)
{
    Sha1Context context;
    sha1Starts(&context);
    for (int i = 0; i < message.size(); i += pieceLength) {
        const QByteArray piece = message.mid(i, pieceLength);
        sha1Update(&context, bytesOf(piece), static_cast<std::int32_t>(piece.size()));
    }
    return finish(context);
}

QByteArray digestOf(const QByteArray &message)
{
    return digestInPieces(message, qMax(1, static_cast<int>(message.size())));
}

QByteArray expectedDigest(const QByteArray &message)
{
    return QCryptographicHash::hash(message, QCryptographicHash::Sha1);
}

} // namespace

class TestSha1 final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMessagesOfTheValidationSystemAreReproduced_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<int>("records");
        QTest::newRow("short") << QStringLiteral(ORVANTA_TEST_DATA "/digests/SHA1ShortMsg.rsp") << 65;
        QTest::newRow("long") << QStringLiteral(ORVANTA_TEST_DATA "/digests/SHA1LongMsg.rsp") << 64;
    }

    void theMessagesOfTheValidationSystemAreReproduced()
    {
        QFETCH(QString, fileName);
        int checked = 0;
        const auto records = readVectorFile(fileName);
        for (const auto &record : records) {
            if (!record.contains("MD"))
                continue;
            QCOMPARE(digestOf(messageOf(record)).toHex(), record.value("MD"));
            ++checked;
        }
        QTEST(checked, "records");
    }

    void theMonteCarloChainOfTheValidationSystemIsReproduced()
    {
        int checked = 0;
        QByteArray seed;
        const auto records = readVectorFile(QStringLiteral(ORVANTA_TEST_DATA "/digests/SHA1Monte.rsp"));
        for (const auto &record : records) {
            if (record.contains("Seed"))
                seed = QByteArray::fromHex(record.value("Seed"));
            if (!record.contains("MD"))
                continue;
            QByteArray last[3] = {seed, seed, seed};
            for (int i = 0; i < 1000; ++i) {
                const QByteArray next = digestOf(last[0] + last[1] + last[2]);
                last[0] = last[1];
                last[1] = last[2];
                last[2] = next;
            }
            seed = last[2];
            QCOMPARE(seed.toHex(), record.value("MD"));
            ++checked;
        }
        QCOMPARE(checked, 100);
    }

    void anEmptyMessageHasItsDigest()
    {
        QCOMPARE(digestOf({}).toHex(), QByteArray("da39a3ee5e6b4b0d3255bfef95601890afd80709"));
    }

    void threeLettersHaveTheirDigest()
    {
        QCOMPARE(digestOf("abc").toHex(), QByteArray("a9993e364706816aba3e25717850c26c9cd0d89d"));
    }

    void aMillionLettersHaveTheirDigest()
    {
        QCOMPARE(digestOf(QByteArray(1000000, 'a')).toHex(), QByteArray("34aa973cd4c4daa4f61eeb2bdbad27316534016f"));
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
        for (int first = 0; first <= 192; ++first) {
            for (int second = first; second <= 192; ++second) {
                Sha1Context context;
                sha1Starts(&context);
                sha1Update(&context, bytesOf(message), first);
                sha1Update(&context, bytesOf(message) + first, second - first);
                sha1Update(&context, bytesOf(message) + second, 192 - second);
                QCOMPARE(finish(context), expected);
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

    void aNegativeLengthAbsorbsNothing()
    {
        Sha1Context context;
        sha1Starts(&context);
        sha1Update(&context, bytesOf(QByteArray("abc")), -3);
        QCOMPARE(finish(context), expectedDigest({}));
    }

    void theFieldsStandInTheirOrder()
    {
        QCOMPARE(offsetof(Sha1Context, total), std::size_t(0));
        QCOMPARE(offsetof(Sha1Context, state), std::size_t(8));
        QCOMPARE(offsetof(Sha1Context, buffer), std::size_t(28));
        QCOMPARE(sizeof(Sha1Context), std::size_t(92));
    }
};

QTEST_GUILESS_MAIN(TestSha1)
#include "tst_sha1.moc"
