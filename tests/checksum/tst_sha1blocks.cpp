#include "checksum/sha1blocks.h"
#include "checksum/sha1instructions.h"
#include "tests/support/vectorfile.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using BlockFunction = void (*)(std::uint32_t *, const std::uint8_t *, std::size_t);
Q_DECLARE_METATYPE(BlockFunction)

namespace {

// A message padded by hand (FIPS 180-1, section 4), so that nothing but the blocks is under test.
QByteArray padded(const QByteArray &message)
{
    QByteArray blocks = message + '\x80';
    while (blocks.size() % 64 != 56)
        blocks += '\0';
    QByteArray length(8, '\0');
    qToBigEndian(static_cast<quint64>(message.size()) * 8, length.data());
    return blocks + length;
}

QByteArray digestBy(BlockFunction function, const QByteArray &message, std::size_t blocksAtOnce)
{
    const QByteArray blocks = padded(message);
    std::uint32_t state[5] = {0x67452301u, 0xefcdab89u, 0x98badcfeu, 0x10325476u, 0xc3d2e1f0u};
    const auto count = static_cast<std::size_t>(blocks.size()) / 64;
    for (std::size_t i = 0; i < count; i += blocksAtOnce)
        function(state, reinterpret_cast<const std::uint8_t *>(blocks.constData()) + 64 * i,
                 qMin(blocksAtOnce, count - i));
    QByteArray digest(20, '\0');
    for (int i = 0; i < 5; ++i)
        qToBigEndian(state[i], digest.data() + 4 * i);
    return digest;
}

} // namespace

/// Every way of compressing blocks, each with the same messages on every machine that has it.
class TestSha1Blocks final : public QObject
{
    Q_OBJECT

    static void addFunctions()
    {
        QTest::addColumn<BlockFunction>("function");
        QTest::newRow("chosen") << BlockFunction(&sha1Blocks);
        QTest::newRow("portable") << BlockFunction(&sha1BlocksPortable);
        if (hasSha1Instructions())
            QTest::newRow("instructions") << BlockFunction(&sha1BlocksByInstructions);
        else
            qWarning("this processor has no SHA instructions to test");
    }

private Q_SLOTS:
    void theMessagesOfTheValidationSystemAreReproduced_data() { addFunctions(); }

    void theMessagesOfTheValidationSystemAreReproduced()
    {
        QFETCH(BlockFunction, function);
        int checked = 0;
        for (const char *name : {"/digests/SHA1ShortMsg.rsp", "/digests/SHA1LongMsg.rsp"}) {
            const auto records = readVectorFile(QStringLiteral(ORVANTA_TEST_DATA) + QString::fromLatin1(name));
            for (const auto &record : records) {
                if (!record.contains("MD"))
                    continue;
                for (const std::size_t blocksAtOnce : {1, 3, 1000})
                    QCOMPARE(digestBy(function, messageOf(record), blocksAtOnce).toHex(), record.value("MD"));
                ++checked;
            }
        }
        QCOMPARE(checked, 129);
    }

    void messagesOfAnyLengthAgreeWithAnotherImplementation_data() { addFunctions(); }

    void messagesOfAnyLengthAgreeWithAnotherImplementation()
    {
        QFETCH(BlockFunction, function);
        QRandomGenerator random(1);
        for (int round = 0; round < 500; ++round) {
            QByteArray message(random.bounded(5000), '\0');
            for (char &byte : message)
                byte = static_cast<char>(random.generate());
            QCOMPARE(digestBy(function, message, 16).toHex(),
                     QCryptographicHash::hash(message, QCryptographicHash::Sha1).toHex());
        }
    }

    void noBlocksChangeNothing_data() { addFunctions(); }

    void noBlocksChangeNothing()
    {
        QFETCH(BlockFunction, function);
        std::uint32_t state[5] = {1, 2, 3, 4, 0xffffffffu};
        function(state, nullptr, 0);
        QCOMPARE(state[0], 1u);
        QCOMPARE(state[3], 4u);
        QCOMPARE(state[4], 0xffffffffu);
    }
};

QTEST_APPLESS_MAIN(TestSha1Blocks)
#include "tst_sha1blocks.moc"
