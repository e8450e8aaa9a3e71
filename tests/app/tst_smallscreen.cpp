#include "tests/app/programtest.h"

/// The built executable on a screen of 800 by 600 pixels: every window fits, in every language.
class TestSmallScreen final : public ProgramTest
{
    Q_OBJECT

    static void expectOnScreen(const InspectedWidget &window)
    {
        QVERIFY(!window.isNull());
        // Without the frame, which the window manager has put on the screen with it.
        QVERIFY2(QRect(0, 0, 800, 600).contains(window.geometry()), qPrintable(str("%1 x %2 at %3, %4")
                                                                                   .arg(window.geometry().width())
                                                                                   .arg(window.geometry().height())
                                                                                   .arg(window.geometry().x())
                                                                                   .arg(window.geometry().y())));
    }

    static InspectedWidget waitForAnyOther(InspectedProgram &program, const QString &objectName)
    {
        InspectedWidget found;
        const auto look = [&] {
            const auto all = program.windows();
            for (const InspectedWidget &window : all) {
                if (window.objectName() == objectName && window.isExposed())
                    found = window;
            }
            return !found.isNull();
        };
        if (!QTest::qWaitFor(look, 20000))
            QTest::qFail("there is no such window", __FILE__, __LINE__);
        return found;
    }

private Q_SLOTS:
    void everyWindowFits_data()
    {
        QTest::addColumn<QString>("code");
        const QDir catalogues(QFileInfo(QStringLiteral(ORVANTA_EXECUTABLE)).path() + str("/locale"));
        const QStringList names = catalogues.entryList({str("*.qm")});
        QCOMPARE(names.size(), 10);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name.mid(8, 5);
        QTest::newRow("English") << str("en_UK");
    }

    void everyWindowFits()
    {
        QFETCH(QString, code);
        writeSettings("<Language>" + code.toUtf8() + "</Language>");
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        waitUntilReady(program);
        expectOnScreen(program.waitForWindow(windowTitle));
        click(program.waitForText(windowTitle, str("toolBar"), "visible", str("true")));
        for (int i = 0; i < 5; ++i)
            pressKey(str("Tab"));
        pressKey(str("space"));
        for (int page = 0; page < 3; ++page) {
            expectOnScreen(waitForAnyOther(program, str("DialogOptions")));
            pressKey(str("Down"));
        }
        pressKey(str("Escape"));
        QTRY_COMPARE_WITH_TIMEOUT(program.windows().size(), 1, 10000);
        close(program);
    }

    void theGreetingFits()
    {
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({});
        for (const char *page : {"0", "1"}) {
            QVERIFY(!program.waitForText(QString(), str("stackedWidget"), "currentIndex", str(page)).isNull());
            expectOnScreen(waitForAnyOther(program, str("DialogStart")));
            pressKey(str("Return"));
        }
        waitUntilReady(program);
        close(program);
    }

    void aBoxFitsWhateverWasTyped_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::newRow("nothing special") << str("/x");
        QTest::newRow("much") << str("/x ") + str("word ").repeated(20000);
        QTest::newRow("one long word") << str("/x ") + QString(100000, QLatin1Char('w'));
        QTest::newRow("a missing file") << str("/a md5 /c 0 /f ") + str("word ").repeated(20000);
    }

    void aBoxFitsWhateverWasTyped()
    {
        QFETCH(QString, commandLine);
        InspectedProgram program(QStringLiteral(ORVANTA_EXECUTABLE));
        prepare(program);
        program.start({commandLine});
        // The box itself is as wide as the screen where a word is.
        const InspectedWidget box = program.waitForWindow(str("Command Line Interface"));
        QVERIFY(box.geometry().height() < 600);
        expectOnScreen(box.find(str("qt_msgbox_buttonbox")).find(QString()));
        pressKey(str("Return"));
        QCOMPARE(program.exitCode(), 255);
    }
};

QTEST_GUILESS_MAIN(TestSmallScreen)
#include "tst_smallscreen.moc"
