#include "update/versioncheckschedule.h"
#include "update/versionnumber.h"
#include "update/versionquery.h"
#include "update/versionreply.h"

#include <QTest>

/// The parts of the version check that are nothing but texts and numbers.
class TestVersionTexts final : public QObject
{
    Q_OBJECT

    static QString str(const char *text) { return QString::fromUtf8(text); }

private Q_SLOTS:
    void theQueryIsBuiltToTheLetter()
    {
        const VersionQuery manual{str("HOST"), str("1.1.6.2"), false, str("en_US"), true};
        QCOMPARE(manual.address(),
                 str("http://HOST/latest.php?id=orvanta&version=1.1.6.2&fresh=0&lang=en_US&beta=1&arch=64"));
        const VersionQuery automatic{str("127.0.0.1:80"), str("%1 %2"), true, str("%3"), false};
        QCOMPARE(automatic.address(),
                 str("http://127.0.0.1:80/latest.php?id=orvanta&version=%1 %2&fresh=1&lang=%3&beta=0&arch=64"));
    }

    void aTimeStampIsOfItsDayAlone_data()
    {
        QTest::addColumn<QString>("timeStamp");
        QTest::addColumn<bool>("isToday");
        QTest::newRow("today") << str("21.11.2026") << true;
        QTest::newRow("yesterday") << str("20.11.2026") << false;
        QTest::newRow("tomorrow") << str("22.11.2026") << false;
        QTest::newRow("a year ago") << str("21.11.2025") << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("another form") << str("2026-11-21") << false;
        QTest::newRow("no zeros") << str("1.1.2026") << false;
        QTest::newRow("no such day") << str("31.02.2026") << false;
        QTest::newRow("blank behind") << str("21.11.2026 ") << false;
    }

    void aTimeStampIsOfItsDayAlone()
    {
        QFETCH(QString, timeStamp);
        QTEST(isTimeStampOf(timeStamp, QDate(2026, 11, 21)), "isToday");
    }

    void aTimeStampIsOverAtMidnight()
    {
        const QDateTime before(QDate(2026, 12, 31), QTime(23, 59, 59));
        const QString timeStamp = timeStampOf(before.date());
        QCOMPARE(timeStamp, str("31.12.2026"));
        QVERIFY(isTimeStampOf(timeStamp, before.date()));
        QVERIFY(!isTimeStampOf(timeStamp, before.addSecs(1).date()));
    }

    void timeStampsHaveTwoDigits() { QCOMPARE(timeStampOf(QDate(2027, 1, 2)), str("02.01.2027")); }

    void versionsHaveExactlyFourParts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("numbers");
        QTest::newRow("four") << str("1.1.6.2") << str("1,1,6,2");
        QTest::newRow("three") << str("2.0.0") << QString();
        QTest::newRow("five") << str("1.2.3.4.5") << QString();
        QTest::newRow("none") << QString() << QString();
        QTest::newRow("empty parts are dropped") << str("..1.1..6.2.") << str("1,1,6,2");
        QTest::newRow("no number is 0") << str("1.x.6b.2") << str("1,0,0,2");
        QTest::newRow("too large is 0") << str("99999999999.1.1.1") << str("0,1,1,1");
        QTest::newRow("negative") << str("-1.1.1.1") << str("-1,1,1,1");
    }

    void versionsHaveExactlyFourParts()
    {
        QFETCH(QString, text);
        QString numbers;
        if (const auto version = parseVersion(text)) {
            numbers =
                str("%1,%2,%3,%4").arg(version->at(0)).arg(version->at(1)).arg(version->at(2)).arg(version->at(3));
        }
        QTEST(numbers, "numbers");
    }

    void theFirstDifferenceDecides_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<bool>("isNewer");
        QTest::newRow("equal") << str("1.1.6.2") << false;
        QTest::newRow("last part larger") << str("1.1.6.3") << true;
        QTest::newRow("third part larger") << str("1.1.7.0") << true;
        QTest::newRow("second part smaller") << str("1.0.9.9") << false;
        QTest::newRow("first part larger") << str("2.0.0.0") << true;
        QTest::newRow("first part smaller") << str("0.9.9.9") << false;
        QTest::newRow("as numbers, not as text") << str("1.1.10.0") << true;
    }

    void theFirstDifferenceDecides()
    {
        QFETCH(QString, server);
        QTEST(*parseVersion(server) > *parseVersion(str("1.1.6.2")), "isNewer");
    }

    void aReplyIsReadByItsRules_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QStringList>("texts");
        const auto row = [](const char *name, const QByteArray &body, const QStringList &texts) {
            QTest::newRow(name) << body << texts;
        };
        row("all keys", "version|1.1.6.3#changes|Fixes#log|L#url|U",
            {str("1.1.6.3"), str("Fixes"), str("L"), str("U")});
        row("nothing", "", {QString(), QString(), QString(), QString()});
        row("line breaks inside a value", "version|1.1.\r\n6.3#chan\nges|a\r\nb",
            {str("1.1.6.3"), str("ab"), QString(), QString()});
        row("white space is simplified", "  version|1.1.6.3#changes|a \t  b  ",
            {str("1.1.6.3"), str("a b"), QString(), QString()});
        row("keys are not trimmed", "version |1#changes| a #log|b", {QString(), str(" a "), str("b"), QString()});
        row("no bar, or nothing before it", "version#|1.1.6.3#changes|a", {QString(), str("a"), QString(), QString()});
        row("more bars", "url|A|B|", {QString(), QString(), QString(), str("A|B|")});
        row("the later one counts", "version|1#version|2", {str("2"), QString(), QString(), QString()});
        row("the later one counts, empty too", "version|1#version|", {QString(), QString(), QString(), QString()});
        row("empty pieces", "###version|1###", {str("1"), QString(), QString(), QString()});
        row("other keys", "Version|1#x|y", {QString(), QString(), QString(), QString()});
        row("latin-1", "changes|\xe4\xf6\xc3", {QString(), str("äöÃ"), QString(), QString()});
        row("placeholders", "changes|%1 %2#log|%1", {QString(), str("%1 %2"), str("%1"), QString()});
        row("a zero byte", QByteArray("changes|a\0b", 11),
            {QString(), str("a") + QChar(0) + str("b"), QString(), QString()});
    }

    void aReplyIsReadByItsRules()
    {
        QFETCH(QByteArray, body);
        const VersionReply reply = parseVersionReply(body);
        QTEST((QStringList{reply.version, reply.changes, reply.log, reply.url}), "texts");
    }

    void onlyTheWebIsForTheBrowser_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("isWeb");
        QTest::newRow("http") << str("http://www.kelvory.example/a?b=c#d") << true;
        QTest::newRow("https") << str("https://www.kelvory.example") << true;
        QTest::newRow("upper case") << str("HTTP://www.kelvory.example/") << true;
        for (const char *address : {"", "www.kelvory.example", "/etc/passwd", "file:///etc/passwd", "file://host/share",
                                    "javascript:alert(1)", "ftp://www.kelvory.example", "http:", "http://",
                                    "http:///path", "https:/www.kelvory.example", "C:\\calc.exe", "\\\\host\\share",
                                    "mailto:a@b.example", "http//www.kelvory.example", " http://[::1"})
            QTest::newRow(address) << str(address) << false;
    }

    void onlyTheWebIsForTheBrowser()
    {
        QFETCH(QString, address);
        QTEST(browserAddress(address).has_value(), "isWeb");
    }

    void theFirstCheckIsDueOnTheFiftyFirstTick()
    {
        VersionCheckSchedule schedule;
        for (int tick = 1; tick <= 50; ++tick)
            QVERIFY(!schedule.tick());
        QVERIFY(schedule.tick());
    }

    void laterChecksAreDueEvery432001Ticks()
    {
        VersionCheckSchedule schedule;
        QList<int> due;
        for (int tick = 1; tick <= 51 + 2 * 432001; ++tick) {
            if (schedule.tick())
                due << tick;
        }
        QCOMPARE(due, (QList<int>{51, 51 + 432001, 51 + 2 * 432001}));
    }
};

QTEST_GUILESS_MAIN(TestVersionTexts)
#include "tst_versiontexts.moc"
