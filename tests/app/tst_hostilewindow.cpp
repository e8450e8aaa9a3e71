#include "tests/app/programtest.h"
#include "tests/support/webserver.h"

#include <sys/stat.h>

#include <unistd.h>

/// The built executable's windows under what nobody does by accident.
class TestHostileWindow final : public ProgramTest
{
    Q_OBJECT

    // A program that takes and gives nothing but what is meant for it here, with a folder of catalogues of its own.
    QString programWithCatalogues() const
    {
        const QString program = path(str("program/orv"));
        QDir().mkpath(path(str("program/locale")));
        if (!QFile::copy(QStringLiteral(ORVANTA_EXECUTABLE), program))
            QTest::qFail("cannot copy the program", __FILE__, __LINE__);
        return program;
    }

    static QByteArray germanCatalogue()
    {
        QFile file(QFileInfo(QStringLiteral(ORVANTA_EXECUTABLE)).path() + str("/locale/orvanta-de_DE.qm"));
        if (!file.open(QIODevice::ReadOnly))
            QTest::qFail("there is no catalogue", __FILE__, __LINE__);
        return file.readAll();
    }

    static InspectedWidget waitForStatus(InspectedProgram &program, const char *color)
    {
        return program.waitForText(windowTitle, str("statusbar"), "styleSheet", str(color));
    }

    // A program with its window and its options open, whose requests go to a port on this machine.
    void startWithOptions(InspectedProgram &program, quint16 port)
    {
        writeSettings();
        prepare(program);
        program.setVariable(str("ORVANTA_INSPECTOR_PROXY"), QString::number(port));
        program.start({});
        waitUntilReady(program);
        openOptions(program);
    }

    static void checkNow(InspectedProgram &program)
    {
        click(program.waitForText(str("Settings"), str("pushButtonUpdate"), "visible", str("true")));
    }

    static void closeBoxAndAll(InspectedProgram &program)
    {
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 2, 10000);
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
    }

private Q_SLOTS:
    void aNameCanBeAnything_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("line feeds") << str("a\nb\r\nc");
        QTest::newRow("markup") << str("<img src=x><b>&amp;");
        QTest::newRow("right to left") << str("\u202egnp.exe \u05d0\u05d1");
        QTest::newRow("255 bytes") << QString(255, QLatin1Char('n'));
        QTest::newRow("control characters") << str("\x1b[31m\x07\x01\x7f");
        QTest::newRow("blanks") << str("  a  ");
    }

    void aNameCanBeAnything()
    {
        QFETCH(QString, name);
        writeSettings();
        const QString file = write(name, "abc");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({file});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
        QVERIFY(!program.waitForText(windowTitle, str("lineEditPath"), "text", file).isNull());
        // Read again by the path as the window holds it.
        click(program.waitForText(windowTitle, str("comboBox"), "visible", str("true")));
        pressKey(str("Down"));
        pressKey(str("Return"));
        QVERIFY(!program
                     .waitForText(windowTitle, str("lineEditCheckSumOut"), "text",
                                  str("A9993E364706816ABA3E25717850C26C9CD0D89D"))
                     .isNull());
        close(program);
    }

    void whatIsNoFileIsSaidToBeNone_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("an endless device") << str("/dev/zero");
        QTest::newRow("a terminal") << str("/dev/ptmx");
        QTest::newRow("a pipe") << str("pipe");
        QTest::newRow("a folder") << str(".");
    }

    void whatIsNoFileIsSaidToBeNone()
    {
        QFETCH(QString, target);
        writeSettings();
        QCOMPARE(::mkfifo(QFile::encodeName(path(str("pipe"))).constData(), 0600), 0);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({target});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("statusbar"), "message", str("Could not open file..")).isNull());
        QVERIFY(!waitForStatus(program, "color:#33a").isNull());
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", QString()).isNull());
        close(program);
    }

    void tenMegabytesPastedAreNoChecksum()
    {
        writeSettings();
        const QString file = write(str("sample.bin"), "abc");
        const QString pasted = write(str("pasted"), QByteArray("900150983cd24fb0").repeated(10 << 16));
        QCOMPARE(QProcess::execute(str("xclip"), {str("-selection"), str("clipboard"), pasted}), 0);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({file});
        waitUntilReady(program);
        const qint64 before = peakKibibytes(program);
        click(program.waitForText(windowTitle, str("lineEditCheckSumIn"), "text", QString()));
        pressKey(str("ctrl+v"));
        QVERIFY(!waitForStatus(program, "color:#a33").isNull());
        QVERIFY(peakKibibytes(program) - before < 200 * 1024);
        pressKey(str("ctrl+a"));
        typeText(md5OfAbc);
        QVERIFY(!waitForStatus(program, "color:#3a3").isNull());
        close(program);
    }

    void ofAHundredThousandDroppedFilesTheFirstCounts()
    {
        writeSettings();
        const QString file = write(str("dropped.bin"), "abc");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        const qint64 before = peakKibibytes(program);
        drop(program, file, 100000);
        QVERIFY(!program.waitForText(windowTitle, str("lineEditCheckSumOut"), "text", md5OfAbc).isNull());
        QVERIFY(peakKibibytes(program) - before < 200 * 1024);
    }

    void tenThousandCataloguesAreAList()
    {
        const QString executable = programWithCatalogues();
        const QByteArray first = QFile::encodeName(write(str("program/locale/a-00000.qm"), germanCatalogue()));
        for (int i = 1; i < 10000; ++i) {
            const QString name = str("program/locale/a-%1.qm").arg(i, 5, 10, QLatin1Char('0'));
            QCOMPARE(::link(first.constData(), QFile::encodeName(path(name)).constData()), 0);
        }
        writeSettings("<Language>05000</Language>");
        InspectedProgram program(executable);
        prepare(program);
        program.start({});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("label_2"), "text", str("Pfad:")).isNull());
        QVERIFY(peakKibibytes(program) < 300 * 1024);
        close(program);
        QCOMPARE(saved(str("Language")), str("05000"));
    }

    void damagedCataloguesLeaveTheProgramInEnglish_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char *kind : {"empty", "cut", "changed", "noise", "pipe", "folder", "broken link", "endless device",
                                 "unreadable", "1 GB"})
            QTest::newRow(kind) << QByteArray(kind);
    }

    void damagedCataloguesLeaveTheProgramInEnglish()
    {
        QFETCH(QByteArray, kind);
        const QString executable = programWithCatalogues();
        const QString catalogue = str("program/locale/orvanta-de_DE.qm");
        const QByteArray place = QFile::encodeName(path(catalogue));
        QByteArray content = germanCatalogue();
        if (kind == "empty")
            write(catalogue, {});
        else if (kind == "cut")
            write(catalogue, content.left(content.size() / 2));
        else if (kind == "changed")
            write(catalogue, content.replace(100, 200, QByteArray(200, '\xff')));
        else if (kind == "noise")
            write(catalogue, QByteArray("\x3c\xb8\x64\x18 noise").repeated(1000));
        else if (kind == "pipe")
            QCOMPARE(::mkfifo(place.constData(), 0600), 0);
        else if (kind == "folder")
            QVERIFY(QDir().mkdir(path(catalogue)));
        else if (kind == "broken link")
            QCOMPARE(::symlink("nowhere", place.constData()), 0);
        else if (kind == "endless device")
            QCOMPARE(::symlink("/dev/zero", place.constData()), 0);
        else {
            write(catalogue, content);
            if (kind == "unreadable")
                QCOMPARE(::chmod(place.constData(), 0), 0);
            else
                QVERIFY(QFile::resize(path(catalogue), 1 << 30));
        }
        writeSettings("<Language>de_DE</Language>");
        InspectedProgram program(executable);
        prepare(program);
        program.bindByPermissions();
        program.start({});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("label_2"), "text", str("Path:")).isNull());
        QVERIFY(peakKibibytes(program) < 200 * 1024);
        openOptions(program);
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
    }

    void aBrokenServerIsNoConnection_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way :
             {"hangup", "garbage", "cut", "endless", "toolong", "headers", "headerline", "statusline", "bomb",
              "file:///etc/passwd", "ftp://127.0.0.1/a", "data:text/plain,version|9.9.9.9", "http:", "//", "%00"})
            QTest::newRow(way) << str(way);
    }

    void aBrokenServerIsNoConnection()
    {
        QFETCH(QString, way);
        const MisbehavingServer server(way);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        startWithOptions(program, server.port());
        const qint64 before = peakKibibytes(program);
        checkNow(program);
        const InspectedWidget box = program.waitForWindow(str("Version check failed"));
        QVERIFY(box.property("text").startsWith(str("Could not connect to server.\n")));
        QVERIFY(peakKibibytes(program) - before < 200 * 1024);
        closeBoxAndAll(program);
        QCOMPARE(saved(str("VersionCheck/TimeStamp")), str("none"));
    }

    void hostileHtmlOfTheServerIsABoxLikeAnyOther()
    {
        WebServer server;
        QCOMPARE(::mkfifo(QFile::encodeName(path(str("pipe"))).constData(), 0600), 0);
        server.setBody("version|9.9.9.9#changes|<img src='" + QFile::encodeName(path(str("pipe"))) +
                       "'><img src='file:///dev/zero'>" + QByteArray("<table><tr><td>").repeated(2000));
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        startWithOptions(program, server.port());
        checkNow(program);
        QCOMPARE(program.waitForWindow(str("BrimTale 1.1.6.2")).property("text"),
                 str("New version available: <b>Brimtale 9.9.9.9</b>"));
        closeBoxAndAll(program);
    }

    void theWindowCanBeClosedWhileARequestRuns_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"silent", "slow"})
            QTest::newRow(way) << str(way);
    }

    void theWindowCanBeClosedWhileARequestRuns()
    {
        QFETCH(QString, way);
        MisbehavingServer server(way);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        startWithOptions(program, server.port());
        checkNow(program);
        QVERIFY(server.nextLine().startsWith("request"));
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        QVERIFY(server.nextLine().startsWith("closed")); // with the dialog that asked
        close(program);
    }

    void theWindowCanBeClosedWhileTheSplashShows()
    {
        write(settingsFile, "<Settings><IsFirstStart>false</IsFirstStart></Settings>");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        // It has no title, and the program answers nothing while it shows.
        QTRY_VERIFY_WITH_TIMEOUT(!windowsCalled(windowTitle).isEmpty(), 10000);
        closeWindows(windowTitle);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(program.standardError().contains("*success*initialization complete\n"));
        QCOMPARE(saved(str("Window/Opacity")), str("1"));
    }

    void theOptionsCanBeClosedWhileAPageFadesIn()
    {
        writeSettings();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        openOptions(program);
        for (int i = 0; i < 10; ++i) {
            for (int page = 0; page <= i % 3; ++page)
                pressKey(str("Down"));
            pressKey(str("Escape"));
            QVERIFY(!program.waitForWindow(windowTitle).isNull());
            pressKey(str("space")); // on the button, which still has the focus
            QVERIFY(!program.waitForWindow(str("Settings")).isNull());
        }
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
    }

    void theGreetingCanBeLeftWhileItsPageFadesIn()
    {
        for (int i = 0; i < 3; ++i) {
            init();
            InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
            prepare(program);
            program.start({});
            QVERIFY(!program.waitForText(QString(), str("stackedWidget"), "currentIndex", str("0")).isNull());
            pressKey(str("Return"));
            pressKey(str("Return"));
            waitUntilReady(program);
            close(program);
        }
    }
};

QTEST_GUILESS_MAIN(TestHostileWindow)
#include "tst_hostilewindow.moc"
