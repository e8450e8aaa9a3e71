#include "tests/app/programtest.h"

#include <QRandomGenerator>

#include <sys/stat.h>

#include <unistd.h>

/// The built executable with settings that nobody would write, and on disks that nobody would want.
class TestHostileSettings final : public ProgramTest
{
    Q_OBJECT

    qint64 m_ordinaryKibibytes = 0;

    QByteArray place() const { return QFile::encodeName(path(settingsFile)); }

    QByteArray content() const
    {
        QFile file(path(settingsFile));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    void expectModest(InspectedProgram &program) const
    {
        const qint64 peak = peakKibibytes(program);
        QVERIFY2(peak > 0 && peak < m_ordinaryKibibytes + 64 * 1024, qPrintable(QString::number(peak)));
    }

    static void injectFault(InspectedProgram &program, const QByteArray &kind, int number)
    {
        program.setVariable(str("LD_PRELOAD"),
                            str(ORVANTA_FAULTS) + QLatin1Char(' ') + qEnvironmentVariable("LD_PRELOAD"));
        program.setVariable(str("ORVANTA_FAULT"), str(kind.constData()));
        program.setVariable(str("ORVANTA_FAULT_FILES"), str("/Orvanta/config"));
        program.setVariable(str("ORVANTA_FAULT_ERROR"), QString::number(number));
    }

    // Through the two pages of the first start, without changing anything.
    static void greet(InspectedProgram &program)
    {
        QVERIFY(!program.waitForText(QString(), str("stackedWidget"), "currentIndex", str("0")).isNull());
        pressKey(str("Return"));
        QVERIFY(!program.waitForText(QString(), str("stackedWidget"), "currentIndex", str("1")).isNull());
        pressKey(str("Return"));
    }

    void make(const QByteArray &kind) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(settingsFile)).path()));
        const QByteArray levels("<a>");
        if (kind == "1 GB of nothing") {
            write(settingsFile, {});
            QVERIFY(QFile::resize(path(settingsFile), 1 << 30));
        } else if (kind == "20 MB of elements") {
            write(settingsFile, "<Settings>" + QByteArray("<a>b</a>").repeated(2500000) + "</Settings>");
        } else if (kind == "100000 levels") {
            write(settingsFile, "<Settings>" + levels.repeated(100000));
        } else if (kind == "entities of entities") {
            QByteArray entities("<!ENTITY a0 \"aaaaaaaaaaaaaaaa\">");
            for (int i = 1; i < 10; ++i)
                entities += "<!ENTITY a" + QByteArray::number(i) + " \"" +
                            ("&a" + QByteArray::number(i - 1) + ';').repeated(16) + "\">";
            write(settingsFile, "<!DOCTYPE Settings [" + entities + "]><Settings><Language>&a9;</Language></Settings>");
        } else if (kind == "an entity of a device") {
            write(settingsFile, "<!DOCTYPE Settings [<!ENTITY a SYSTEM \"file:///dev/zero\">]>"
                                "<Settings><Language>&a;</Language></Settings>");
        } else if (kind == "a pipe") {
            QCOMPARE(::mkfifo(place().constData(), 0600), 0);
        } else if (kind == "an endless device") {
            QCOMPARE(::symlink("/dev/zero", place().constData()), 0);
        } else if (kind == "a folder") {
            QVERIFY(QDir().mkdir(path(settingsFile)));
        } else if (kind == "unreadable") {
            write(settingsFile, settings());
            QCOMPARE(::chmod(place().constData(), 0), 0);
        } else if (kind == "a broken link") {
            QCOMPARE(::symlink("nowhere/at all", place().constData()), 0);
        } else if (kind == "noise") {
            QByteArray noise(1 << 19, Qt::Uninitialized);
            QRandomGenerator random(1);
            for (char &byte : noise)
                byte = static_cast<char>(random.generate());
            write(settingsFile, noise);
        } else if (kind == "nothing") {
            write(settingsFile, {});
        } else {
            QFAIL("unknown kind");
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        init();
        writeSettings();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        m_ordinaryKibibytes = peakKibibytes(program);
        QVERIFY(m_ordinaryKibibytes > 0);
        close(program);
    }

    void whatCannotBeReadIsAFirstStart_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<bool>("canBeSaved");
        for (const char *kind : {"1 GB of nothing", "20 MB of elements", "100000 levels", "entities of entities",
                                 "an entity of a device", "noise", "nothing"})
            QTest::newRow(kind) << QByteArray(kind) << true;
        for (const char *kind : {"a pipe", "an endless device", "a folder", "unreadable", "a broken link"})
            QTest::newRow(kind) << QByteArray(kind) << false;
    }

    void whatCannotBeReadIsAFirstStart()
    {
        QFETCH(QByteArray, kind);
        QFETCH(bool, canBeSaved);
        make(kind);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.bindByPermissions();
        program.start({});
        greet(program);
        waitUntilReady(program);
        expectModest(program);
        close(program);
        const QByteArray words = "could not save: " + place() + '\n';
        QCOMPARE(program.standardError().count(words), canBeSaved ? 0 : 2); // by the window and by the application
        if (canBeSaved)
            QCOMPARE(saved(str("IsFirstStart")), str("false"));
    }

    void oddValuesStopNothing_data()
    {
        QTest::addColumn<QByteArray>("values");
        QTest::newRow("numbers that are none") << QByteArray("<Window><Opacity>x</Opacity></Window>");
        QTest::newRow("an opacity beyond numbers") << QByteArray("<Window><Opacity>1e999</Opacity></Window>");
        QTest::newRow("an opacity that is no number") << QByteArray("<Window><Opacity>nan</Opacity></Window>");
        QTest::newRow("a negative opacity") << QByteArray("<Window><Opacity>-1</Opacity></Window>");
        QTest::newRow("answers that are none")
            << QByteArray("<Window><StayOnTop>maybe</StayOnTop></Window><VersionCheck><Auto>perhaps</Auto>"
                          "<TimeStamp>99.99.9999</TimeStamp></VersionCheck>");
        QTest::newRow("a language out of the folder") << QByteArray("<Language>../../../etc/passwd</Language>");
        QTest::newRow("a place that is none") << QByteArray("<Window><RestoreGeometry>true</RestoreGeometry>"
                                                            "<WndGeometry>01d9d0cb0003</WndGeometry></Window>");
        QTest::newRow("a place and a size beyond every screen")
            << "<Window><RestoreGeometry>true</RestoreGeometry><WndGeometry>01d9d0cb00030000" +
                   QByteArray("7fffff007fffff007fffffff7fffffff").repeated(2) +
                   "0000000000007fffffff7fffff007fffff007fffffff7fffffff</WndGeometry></Window>";
        QTest::newRow("a layout of countless tool bars")
            << QByteArray("<Window><RestoreLayout>true</RestoreLayout><WndState>000000ff00000000fd00000000000000000000"
                          "00000000000400000004000000080000000"
                          "8fc000000010000000029000000010000000e0074026f00610000</WndState></Window>");
        QTest::newRow("other kinds of nodes")
            << QByteArray("<Language><b/><!-- c --><?p i?></Language><Window><![CDATA[x]]></Window>");
        QTest::newRow("everything twice") << QByteArray("<IsFirstStart>true</IsFirstStart><Window/><Window/>");
    }

    void oddValuesStopNothing()
    {
        QFETCH(QByteArray, values);
        writeSettings(values);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        const InspectedWidget window =
            program.waitForText(windowTitle, str("MainWindow"), "isActiveWindow", str("true"));
        QVERIFY(!window.isNull());
        QVERIFY(QRect(0, 0, 1280, 1024).intersects(window.geometry()));
        expectModest(program);
        close(program);
        QCOMPARE(saved(str("IsFirstStart")), str("false"));
    }

    void aLinkToTheSettingsStaysOne()
    {
        write(str("elsewhere.xml"), settings("<Language>de_DE</Language>"));
        QVERIFY(QDir().mkpath(QFileInfo(path(settingsFile)).path()));
        QVERIFY(QFile::link(path(str("elsewhere.xml")), path(settingsFile)));
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        QVERIFY(!program.waitForText(windowTitle, str("label_2"), "text", str("Pfad:")).isNull());
        close(program);
        QVERIFY(QFileInfo(path(settingsFile)).isSymLink());
        QCOMPARE(saved(str("Language"), str("elsewhere.xml")), str("de_DE"));
        QCOMPARE(saved(str("Window/Opacity"), str("elsewhere.xml")), str("1"));
    }

    void aDiskThatFailsKeepsTheSettings_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("full") << QByteArray("write") << ENOSPC << QByteArray("could not save all data in: ");
        QTest::newRow("failing") << QByteArray("write") << EIO << QByteArray("could not save all data in: ");
        QTest::newRow("no new name") << QByteArray("rename") << EIO << QByteArray("could not save all data in: ");
    }

    void aDiskThatFailsKeepsTheSettings()
    {
        QFETCH(QByteArray, kind);
        QFETCH(int, number);
        QFETCH(QByteArray, words);
        writeSettings("<Language>de_DE</Language>");
        const QByteArray before = content();
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        injectFault(program, kind, number);
        program.start({});
        waitUntilReady(program);
        close(program);
        QCOMPARE(program.standardError().count(words + place() + '\n'), 2);
        QCOMPARE(content(), before);
        QCOMPARE(QDir(QFileInfo(path(settingsFile)).path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{str("global.xml")});
    }

    void severalThatCloseAtOnceLeaveOneWholeFile()
    {
        writeSettings("<Language>de_DE</Language>");
        std::vector<std::unique_ptr<InspectedProgram>> programs;
        for (int i = 0; i < 4; ++i) {
            programs.push_back(std::make_unique<InspectedProgram>(QStringLiteral(ORVANTA_EXECUTABLE)));
            prepare(*programs.back());
            programs.back()->start({});
            waitUntilReady(*programs.back());
        }
        closeWindows(windowTitle);
        for (const auto &program : programs)
            QCOMPARE(program->exitCode(), 0);
        QCOMPARE(saved(str("Language")), str("de_DE"));
        QCOMPARE(saved(str("Window/Opacity")), str("1"));
        QCOMPARE(QDir(QFileInfo(path(settingsFile)).path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{str("global.xml")});
    }

    void whoIsKilledWhileStartingLosesNothing()
    {
        writeSettings("<Language>de_DE</Language>");
        const QByteArray before = content();
        for (int i = 0; i < 30; ++i) {
            InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
            prepare(program);
            program.start({});
            program.process().waitForFinished(static_cast<int>(QRandomGenerator::global()->bounded(400)));
            QVERIFY(program.isRunning());
            program.process().kill();
            QVERIFY(program.process().waitForFinished());
            QCOMPARE(content(), before);
        }
    }

    void whoIsKilledWhileClosingLosesNothing()
    {
        writeSettings("<Language>de_DE</Language>");
        int killed = 0;
        for (int i = 0; i < 15; ++i) {
            InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
            prepare(program);
            program.start({});
            waitUntilReady(program);
            closeWindows(windowTitle);
            program.process().waitForFinished(static_cast<int>(QRandomGenerator::global()->bounded(40)));
            killed += program.isRunning() ? 1 : 0;
            program.process().kill();
            program.process().waitForFinished();
            QCOMPARE(saved(str("Language")), str("de_DE"));
            QCOMPARE(saved(str("IsFirstStart")), str("false"));
        }
        QVERIFY(killed > 0);
    }
};

QTEST_GUILESS_MAIN(TestHostileSettings)
#include "tst_hostilesettings.moc"
