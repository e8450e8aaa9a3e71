#include "app/lastresort.h"
#include "configuration.h"

#include <QByteArray>
#include <QTest>

#include <cstring>

namespace {

const QByteArray help = QByteArray("\n\nIf you need help, please contact us at: ") + Configuration::supportAddress;

} // namespace

class TestLastResort final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShortTextStandsBetweenItsKindAndTheHelp()
    {
        QCOMPARE(QByteArray(knownErrorText("It broke.").data()), "Error Type: It broke." + help);
        QCOMPARE(QByteArray(knownErrorText("").data()), "Error Type: " + help);
    }

    void aTextOfAnyLengthStaysInsideTheBufferAndKeepsTheHelp()
    {
        const auto longest = 255 - int(std::strlen("Error Type: ")) - int(help.size());
        for (int length = 0; length < 1000; ++length) {
            const QByteArray text(length, 'x');
            const auto buffer = knownErrorText(text.constData());
            QCOMPARE(buffer.back(), '\0');
            QCOMPARE(QByteArray(buffer.data()), "Error Type: " + text.left(longest) + help);
        }
    }

    void theBufferIsZeroToItsEnd()
    {
        const auto buffer = knownErrorText("short");
        for (std::size_t i = std::strlen(buffer.data()); i < buffer.size(); ++i)
            QCOMPARE(buffer.at(i), '\0');
    }

    void formatsAreText() { QVERIFY(QByteArray(knownErrorText("%s%n%1").data()).contains("Error Type: %s%n%1\n")); }
};

QTEST_GUILESS_MAIN(TestLastResort)
#include "tst_lastresort.moc"
