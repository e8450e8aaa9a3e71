#include "configuration.h"
#include "tests/app/programtest.h"
#include "tests/support/webserver.h"

#include <QDate>

/// The built executable with its windows, used as a person does: with keys, clicks and a drag on a real display.
class TestProgram final : public ProgramTest
{
    Q_OBJECT

    // What lies in the program's memory, region by region.
    static QByteArray memoryOf(InspectedProgram &program)
    {
        QFile maps(str("/proc/%1/maps").arg(program.process().processId()));
        return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
    }

private Q_SLOTS:
    void theFirstStartGreetsAndRemembersThat()
    {
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        const InspectedWidget page = program.waitForText(QString(), str("stackedWidget"), "currentIndex", str("0"));
        QVERIFY(!page.isNull());
        for (const InspectedWidget &window : program.windows())
            QVERIFY(window.objectName() != str("MainWindow"));
        pressKey(str("Escape")); // is refused
        pressKey(str("Return"));
        QVERIFY(!program.waitForText(QString(), str("stackedWidget"), "currentIndex", str("1")).isNull());
        pressKey(str("Return"));
        waitUntilReady(program);
        close(program);
        const QByteArray lines = program.standardError();
        QVERIFY(lines.contains("languages loaded\n"));
        QVERIFY(lines.contains("*success*initialization complete\n"));

        QCOMPARE(saved(str("IsFirstStart")), str("false"));
        QCOMPARE(saved(str("Language")), str("en_UK"));
        QCOMPARE(saved(str("VersionCheck/Auto")), str("true"));
        QCOMPARE(saved(str("VersionCheck/TimeStamp")), str("none"));
        QCOMPARE(saved(str("DisableSplashScreen")), str("false"));
        QCOMPARE(saved(str("Window/StayOnTop")), str("false"));
        QCOMPARE(saved(str("Window/Opacity")), str("1"));
        QCOMPARE(saved(str("Window/RestoreLayout")), str("false"));
        QCOMPARE(saved(str("Window/RestoreGeometry")), str("false"));
        QCOMPARE(saved(str("Window/WndGeometry")), str("none"));
        QVERIFY(!QDir(path(str("config"))).exists());
    }

    void theSecondStartOpensTheWindowAtOnce()
    {
        writeSettings("<Language>de_DE</Language>");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        QCOMPARE(program.windows().size(), 1);
        QVERIFY(!program.waitForText(windowTitle, str("label_2"), "text", str("Pfad:")).isNull());
        close(program);
        QCOMPARE(saved(str("Language")), str("de_DE"));
    }

    // Loading a driver for what is never drawn would be a good part of the start.
    void aStartLoadsNoOpenGlDriver()
    {
        writeSettings();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        const QByteArray libraries = memoryOf(program);
        QVERIFY(libraries.contains("libqxcb.so"));
        for (const char *name : {"glx-integration", "egl-integration", "_dri.so", "libLLVM"})
            QVERIFY2(!libraries.contains(name), name);
        close(program);
    }

    void aPortableStartKeepsEverythingBesideTheProgram()
    {
        QVERIFY(QDir().mkpath(path(str("program"))));
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_EXECUTABLE), path(str("program/orv"))));
        write(str("program/portable.txt"), {});
        write(str("program/config/global.xml"), settings());
        InspectedProgram program(path(str("program/orv")));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        close(program);
        QCOMPARE(saved(str("VersionCheck/Auto"), str("program/config/global.xml")), str("true"));
        QVERIFY(!QFileInfo::exists(path(str("data"))));
        QVERIFY(!QFileInfo::exists(path(str("program/writable"))));
    }

    void aFileOnTheCommandLineIsAdded_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<bool>("isAbsolute");
        QTest::newRow("absolute") << str("absolute") << true;
        QTest::newRow("relative") << str("two words.bin") << false;
    }

    void aFileOnTheCommandLineIsAdded()
    {
        QFETCH(QString, argument);
        QFETCH(bool, isAbsolute);
        writeSettings();
        const QString file = write(str("two words.bin"), "abc");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({isAbsolute ? file : argument});
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
        QVERIFY(!program.waitForText(windowTitle, str("lineEditPath"), "text", file).isNull());
        waitUntilReady(program);
        close(program);
    }

    void aPastedChecksumIsValidOrNot()
    {
        writeSettings();
        const QString file = write(str("sample.bin"), "abc");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({file});
        waitUntilReady(program);
        click(program.waitForText(windowTitle, str("lineEditCheckSumIn"), "text", QString()));
        typeText(md5OfAbc.toUpper());
        QVERIFY(!program.waitForText(windowTitle, str("statusbar"), "styleSheet", str("color:#3a3")).isNull());
        pressKey(str("BackSpace"));
        QVERIFY(!program.waitForText(windowTitle, str("statusbar"), "styleSheet", str("color:#a33")).isNull());
        close(program);
    }

    void aFileIsDroppedFromAnotherProgram()
    {
        writeSettings();
        const QString file = write(str("dropped.bin"), "abc");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        drop(program, file, 1);
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
    }

    void theLanguageIsSwitchedInTheOptions()
    {
        writeSettings();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        openOptions(program);
        pressKey(str("Down"));
        QVERIFY(!program.waitForText(str("Settings"), str("stackedWidget"), "currentIndex", str("1")).isNull());
        const InspectedWidget list = program.waitForText(str("Settings"), str("listLocale"), "visible", str("true"));
        click(list);
        pressKey(str("Home"));
        QVERIFY(!program.waitForWindow(str("设置")).isNull()); // sorted, zh_CN comes first
        QVERIFY(!program.waitForText(windowTitle, str("label_2"), "text", str("路径：")).isNull());
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
        QCOMPARE(saved(str("Language")), str("zh_CN"));
    }

    void checkNowAsksTheServer()
    {
        writeSettings();
        WebServer server;
        server.setBody("version|1.1.6.3#changes|Fixes#log|http://log.example/#url|http://get.example/");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.setVariable(str("ORVANTA_INSPECTOR_PROXY"), QString::number(server.port()));
        program.start({});
        waitUntilReady(program);
        openOptions(program);
        click(program.waitForText(str("Settings"), str("pushButtonUpdate"), "visible", str("true")));
        const InspectedWidget box = program.waitForWindow(str("BrimTale 1.1.6.2"));
        QCOMPARE(box.property("text"), str("New version available: <b>Brimtale 1.1.6.3</b>"));
        QCOMPARE(box.buttons(), (QStringList{str("Yes"), str("No")}));
        // The reply has been searched by a regular expression, and that was not turned into code.
        QVERIFY(memoryOf(program).contains(" r-xp "));
        QVERIFY(!memoryOf(program).contains(" rwx"));
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 2, 10000);
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
        QCOMPARE(server.requests(),
                 QList<QByteArray>{
                     QByteArray("GET http://") + Configuration::updateHost +
                     "/latest.php?id=orvanta&version=1.1.6.2&fresh=0&lang=en_US&beta=1&arch=64 HTTP/1.1|-|200"});
        QCOMPARE(saved(str("VersionCheck/TimeStamp")), QDate::currentDate().toString(str("dd.MM.yyyy")));
    }
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
