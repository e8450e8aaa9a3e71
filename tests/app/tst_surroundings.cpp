#include "tests/app/programtest.h"
#include "tests/support/webserver.h"

/// The built executable where its surroundings fail it: the clock, the fonts, the colours, the screen.
class TestSurroundings final : public ProgramTest
{
    Q_OBJECT

    // In the form of libfaketime: the clock stands there and goes on.
    void setClock(const char *time) const { write(str("clock"), QByteArray("@") + time + '\n'); }

    QByteArray pictureOf(InspectedProgram &program) const
    {
        const QStringList windows = windowsCalled(windowTitle);
        const QString picture = path(str("picture.ppm"));
        if (windows.size() != 1 || QProcess::execute(str("import"), {str("-window"), windows.first(), picture}) != 0 ||
            !program.isRunning())
            QTest::qFail("there is no picture", __FILE__, __LINE__);
        QFile file(picture);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The desktop's own colours, all of them the same.
    void useDesktopOf(InspectedProgram &program, const QByteArray &color) const
    {
        QByteArray theme("[General]\nfont=DejaVu Sans,9,-1,5,50,0,0,0,0,0\n");
        for (const char *set : {"Window", "Button", "View", "Selection", "Tooltip", "Complementary"}) {
            theme += QByteArray("[Colors:") + set + "]\n";
            for (const char *role :
                 {"BackgroundNormal", "BackgroundAlternate", "ForegroundNormal", "ForegroundInactive", "ForegroundLink",
                  "ForegroundVisited", "DecorationFocus", "DecorationHover"})
                theme += role + ('=' + color) + '\n';
        }
        write(str("desktop/kdeglobals"), theme);
        program.setVariable(str("XDG_CONFIG_HOME"), path(str("desktop")));
        program.setVariable(str("XDG_CURRENT_DESKTOP"), str("KDE"));
        program.setVariable(str("KDE_FULL_SESSION"), str("true"));
        program.setVariable(str("KDE_SESSION_VERSION"), str("5"));
    }

    QByteArray pictureOnDesktopOf(const QByteArray &color)
    {
        writeSettings();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        useDesktopOf(program, color);
        program.start({write(str("sample.bin"), "abc")});
        waitUntilReady(program);
        if (program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull())
            QTest::qFail("no checksum", __FILE__, __LINE__);
        QByteArray picture = pictureOf(program);
        close(program);
        return picture;
    }

private Q_SLOTS:
    // By the date of the place where the program runs, at the moment of the check that is made some ten seconds after
    // its start.
    void whetherTheDayHasHadItsCheckGoesByTheDateAlone_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QByteArray>("clock");
        QTest::addColumn<QByteArray>("clockIsSetTo");
        QTest::addColumn<QString>("timeStamp");
        QTest::addColumn<QString>("timeStampAfterwards");
        QTest::newRow("the same day") << str("Etc/GMT-2") << QByteArray("2026-11-22 00:30:00") << QByteArray()
                                      << str("22.11.2026") << str("22.11.2026");
        QTest::newRow("the clock is set back")
            << str("Etc/GMT-2") << QByteArray("2026-11-22 00:30:00") << QByteArray("2026-11-21 12:00:00")
            << str("22.11.2026") << str("21.11.2026");
        QTest::newRow("the same moment in another time zone") << str("Etc/GMT+2") << QByteArray("2026-11-21 20:30:00")
                                                              << QByteArray() << str("22.11.2026") << str("21.11.2026");
        QTest::newRow("midnight, which summer time skips") << str("Asia/Beirut") << QByteArray("2026-03-28 23:59:55")
                                                           << QByteArray() << str("28.03.2026") << str("29.03.2026");
    }

    void whetherTheDayHasHadItsCheckGoesByTheDateAlone()
    {
        QFETCH(QString, zone);
        QFETCH(QByteArray, clock);
        QFETCH(QByteArray, clockIsSetTo);
        QFETCH(QString, timeStamp);
        QFETCH(QString, timeStampAfterwards);
        WebServer server;
        server.setBody("version|1.1.6.2");
        writeSettings("<VersionCheck><TimeStamp>" + timeStamp.toUtf8() + "</TimeStamp></VersionCheck>");
        setClock(clock);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.setVariable(str("ORVANTA_INSPECTOR_PROXY"), QString::number(server.port()));
        program.setVariable(str("LD_PRELOAD"), str("/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1 ") +
                                                   qEnvironmentVariable("LD_PRELOAD"));
        program.searchForNoLeaks();
        program.setVariable(str("FAKETIME_TIMESTAMP_FILE"), path(str("clock")));
        program.setVariable(str("FAKETIME_NO_CACHE"), str("1"));
        program.setVariable(str("DONT_FAKE_MONOTONIC"), str("1"));
        program.setVariable(str("TZ"), zone);
        program.start({});
        waitUntilReady(program);
        if (!clockIsSetTo.isEmpty())
            setClock(clockIsSetTo);
        const bool isChecked = timeStampAfterwards != timeStamp;
        if (isChecked)
            QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, 30000);
        else
            QTest::qSleep(12000);
        QCOMPARE(server.requests().size(), isChecked ? 1 : 0);
        QCOMPARE(program.windows().size(), 1); // without a word
        close(program);
        QCOMPARE(saved(str("VersionCheck/TimeStamp")), timeStampAfterwards);
    }

    void withoutAnyFontFilesAreStillChecked()
    {
        writeSettings();
        write(str("fonts.conf"), "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig/>");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.setVariable(str("FONTCONFIG_FILE"), path(str("fonts.conf")));
        program.start({write(str("sample.bin"), "abc")});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
        openOptions(program);
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
    }

    void aDesktopWithoutColoursTakesNoneFromTheWindow()
    {
        const QByteArray ordinary = pictureOnDesktopOf("240,240,240");
        QVERIFY(ordinary.size() > 100000);
        QByteArray black;
        for (int i = 0; i < 5 && black != ordinary; ++i) // until the cursor blinks alike
            black = pictureOnDesktopOf("0,0,0");
        QVERIFY(black == ordinary);
    }

    void onADenseScreenTheWindowIsThreeTimesAsLarge()
    {
        QList<QSize> sizes;
        for (const char *scale : {"1", "3"}) {
            writeSettings();
            InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
            prepare(program);
            program.setVariable(str("QT_SCALE_FACTOR"), str(scale));
            program.start({write(str("sample.bin"), "abc")});
            waitUntilReady(program);
            QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
            const QList<QByteArray> words = pictureOf(program).left(20).simplified().split(' ');
            sizes << QSize(words.value(1).toInt(), words.value(2).toInt());
            close(program);
        }
        QVERIFY(sizes.at(0).width() > 400);
        QCOMPARE(sizes.at(1), sizes.at(0) * 3);
    }
};

QTEST_GUILESS_MAIN(TestSurroundings)
#include "tst_surroundings.moc"
