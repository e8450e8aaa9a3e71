#include "settings/settingsreader.h"

#include <QTest>
#include <QThread>

#include <sys/resource.h>

namespace {

QByteArray nested(int levels)
{
    QByteArray text("<Settings>");
    for (int i = 1; i < levels; ++i)
        text += "<a>";
    for (int i = 1; i < levels; ++i)
        text += "</a>";
    return text + "</Settings>";
}

bool isRead(const QByteArray &text)
{
    return !readSettings(text).isNull();
}

QByteArray utf16(const QString &text, bool bigEndian)
{
    QByteArray bytes(bigEndian ? "\xfe\xff" : "\xff\xfe");
    for (const QChar character : text) {
        const char low = static_cast<char>(character.unicode() & 0xff);
        const char high = static_cast<char>(character.unicode() >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

class TestSettingsReader final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingYieldsNothing()
    {
        QVERIFY(!isRead({}));
        QVERIFY(!isRead("   \n"));
        QVERIFY(!isRead("no xml"));
        QVERIFY(!isRead(QByteArray(1000, '\0')));
        QVERIFY(!isRead("<settings/>"));
    }

    void theFirstElementOfTheNameIsTaken()
    {
        QVERIFY(isRead("<Settings/>"));
        QVERIFY(isRead("<?xml version=\"1.0\"?><!-- a --><Settings><A/></Settings>"));
        QVERIFY(isRead("<!DOCTYPE Settings><Settings/>"));
    }

    void utf8IsReadWithAndWithoutItsMark()
    {
        QCOMPARE(readSettings("\xef\xbb\xbf<Settings>\xc3\xa4</Settings>").text(), QString(QChar(0xe4)));
        QCOMPARE(readSettings("<Settings>\xc3\xa4</Settings>").text(), QString(QChar(0xe4)));
    }

    void utf16IsReadByItsMark()
    {
        const QString text =
            QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-16\"?><Settings>%1</Settings>").arg(QChar(0x6587));
        QCOMPARE(readSettings(utf16(text, true)).text(), QString(QChar(0x6587)));
        QCOMPARE(readSettings(utf16(text, false)).text(), QString(QChar(0x6587)));
    }

    void textThatBreaksOffIsUsedAsFarAsItGoes()
    {
        const QByteArray whole("<Settings><A>1</A><B>2</B></Settings>");
        QCOMPARE(readSettings(whole.left(18)).firstChildElement(QStringLiteral("A")).text(), QStringLiteral("1"));
        for (int length = 11; length < whole.size(); ++length)
            QVERIFY2(isRead(whole.left(length)), qPrintable(QString::number(length)));
    }

    void sixtyFourLevelsAreReadAndNotOneMore()
    {
        QVERIFY(isRead(nested(64)));
        QVERIFY(!isRead(nested(65)));
    }

    void deepTextDoesNotExhaustASmallStack_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("closed") << nested(100000);
        QTest::newRow("not closed") << QByteArray("<Settings>") + QByteArray("<a>").repeated(300000);
        QTest::newRow("broken at once") << QByteArray("<Settings a a>") + QByteArray("<a>").repeated(300000);
        QTest::newRow("broken, 500 levels")
            << QByteArray("<Settings a=\"1\" a=\"1\">") + QByteArray("<a>").repeated(500);
        QTest::newRow("behind another root") << QByteArray("<a/><Settings>") + QByteArray("<a>").repeated(300000);
    }

    void deepTextDoesNotExhaustASmallStack()
    {
        QFETCH(QByteArray, text);
        class Reader final : public QThread
        {
        public:
            explicit Reader(QByteArray bytes)
                : m_bytes(std::move(bytes))
            {
                setStackSize(1024 * 1024); // what a main thread has on Windows
            }

        private:
            void run() override { readSettings(m_bytes); }
            QByteArray m_bytes;
        };
        Reader reader(text);
        reader.start();
        QVERIFY(reader.wait(60000));
    }

    void entitiesOfItsOwnAreRefused()
    {
        QVERIFY(!isRead("<!DOCTYPE Settings [<!ENTITY a \"b\">]><Settings>&a;</Settings>"));
        QVERIFY(!isRead("<!DOCTYPE Settings []><Settings/>"));
        QVERIFY(!isRead("<a/><!DOCTYPE Settings [<!ENTITY a \"b\">]><Settings>&a;</Settings>"));
    }

    void entitiesDoNotExpandIntoAllMemory()
    {
        QByteArray text("<!DOCTYPE Settings [<!ENTITY a0 \"0123456789\">");
        for (int i = 1; i < 12; ++i) {
            const QByteArray last = "&a" + QByteArray::number(i - 1) + ";";
            text += "<!ENTITY a" + QByteArray::number(i) + " \"" + last.repeated(10) + "\">";
        }
        text += "]><Settings>&a11;</Settings>";
        rusage before{};
        rusage after{};
        getrusage(RUSAGE_SELF, &before);
        QVERIFY(!isRead(text));
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 64 * 1024); // kilobytes
    }

    void oneMebibyteIsReadAndNotOneByteMore()
    {
        const QByteArray shell("<Settings><!----></Settings>");
        QByteArray text("<Settings><!--");
        text += QByteArray(1024 * 1024 - shell.size(), 'x') + "--></Settings>";
        QCOMPARE(text.size(), 1024 * 1024);
        QVERIFY(isRead(text));
        QVERIFY(!isRead(text + " "));
    }

    void aFullMebibyteOfAnythingIsDoneInNoTime_data()
    {
        QTest::addColumn<QByteArray>("text");
        const int size = 1024 * 1024;
        const auto filled = [](const QByteArray &start, const QByteArray &piece) {
            return (start + piece.repeated((size - start.size()) / piece.size())).left(size);
        };
        QByteArray attributes("<Settings ");
        for (int i = 0; attributes.size() < size - 20; ++i)
            attributes += "a" + QByteArray::number(i) + "='' ";
        QTest::newRow("attributes") << attributes + "/>";
        QTest::newRow("attributes, broken") << attributes;
        QTest::newRow("siblings") << filled("<Settings>", "<a/>") + "</Settings>";
        QTest::newRow("siblings, broken") << filled("<Settings>", "<a/>");
        QTest::newRow("references") << filled("<Settings>", "&amp;");
        QTest::newRow("closing brackets") << filled("<Settings>", "]]");
        QTest::newRow("comment") << filled("<Settings><!--", "- ");
        QTest::newRow("long name") << filled("<", "a");
        QTest::newRow("questions") << filled("<?xml ", "?");
    }

    void aFullMebibyteOfAnythingIsDoneInNoTime()
    {
        QFETCH(QByteArray, text);
        // Against the time for the same amount of plain text; nothing but a blow-up is that much slower.
        const auto processorTime = [] {
            rusage usage{};
            getrusage(RUSAGE_SELF, &usage);
            return double(usage.ru_utime.tv_sec) + double(usage.ru_utime.tv_usec) / 1e6;
        };
        const double start = processorTime();
        for (int i = 0; i < 4; ++i)
            readSettings("<Settings>" + QByteArray(1024 * 1024 - 30, 'x') + "</Settings>");
        const double plain = processorTime() - start;
        readSettings(text);
        const double time = processorTime() - start - plain;
        QVERIFY2(time < 60 * plain, qPrintable(QStringLiteral("%1 s against %2 s").arg(time).arg(plain)));
    }
};

QTEST_GUILESS_MAIN(TestSettingsReader)
#include "tst_settingsreader.moc"
