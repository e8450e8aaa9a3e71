#include "tests/support/inspectedprogram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString usageTitle = QStringLiteral("Command Line Interface");

QString filledIn(QString text)
{
    const QString md5 = QStringLiteral("900150983cd24fb0d6963f7d28e17f72");
    const QString sha1 = QStringLiteral("a9993e364706816aba3e25717850c26c9cd0d89d");
    return text.replace(QLatin1String("{md5}"), md5)
        .replace(QLatin1String("{MD5}"), md5.toUpper())
        .replace(QLatin1String("{sha1}"), sha1)
        .replace(QLatin1String("{SHA1}"), sha1.toUpper())
        .replace(QLatin1String("{blank}"), QLatin1String(" "))
        .replace(QLatin1String("{tab}"), QLatin1String("\t"));
}

} // namespace

/// The built executable as a script sees it: exit code, boxes and standard error.
class TestExecutable final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_executable;

    void addRows()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("box");
        QFile table(QStringLiteral(ORVANTA_TEST_DATA "/command-lines.tsv"));
        QVERIFY(table.open(QIODevice::ReadOnly));
        int rows = 0;
        while (!table.atEnd()) {
            const QString line = QString::fromUtf8(table.readLine());
            if (line.startsWith(QLatin1Char('#')))
                continue;
            const QStringList cells = line.chopped(1).split(QLatin1Char('\t'));
            QCOMPARE(cells.size(), 4);
            QTest::newRow(qPrintable(cells.at(0)))
                << filledIn(cells.at(1)) << cells.at(2).toInt() << filledIn(cells.at(3));
            ++rows;
        }
        QVERIFY(rows > 50);
    }

    void startIn(InspectedProgram &program, const QStringList &arguments) const
    {
        program.setWorkingDirectory(m_folder.path());
        program.bindByPermissions();
        program.start(arguments);
    }

    static void withoutDisplay(InspectedProgram &program)
    {
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
            program.removeVariable(QString::fromLatin1(name));
    }

    static int shellCode(int code) { return code & 0xff; }

private Q_SLOTS:
    void initTestCase()
    {
        // A copy, so that nothing but these files stands beside it.
        m_executable = m_folder.filePath(QStringLiteral("orv"));
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_EXECUTABLE), m_executable));
        for (const QString &name :
             {QStringLiteral("sample.bin"), QStringLiteral("two words.bin"), QStringLiteral("größe-文件.bin"),
              QStringLiteral("-style"), QStringLiteral("secret.bin")}) {
            QFile file(m_folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write("abc"), qint64(3));
            file.close();
            const mode_t mode = name == QLatin1String("secret.bin") ? 0 : 0644;
            QCOMPARE(::chmod(QFile::encodeName(file.fileName()).constData(), mode), 0);
        }
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder")));
    }

    void everyCommandLineHasItsCodeAndBoxOnADisplay_data() { addRows(); }

    void everyCommandLineHasItsCodeAndBoxOnADisplay()
    {
        QFETCH(QString, commandLine);
        QFETCH(int, code);
        QFETCH(QString, box);

        InspectedProgram program(m_executable);
        startIn(program, {commandLine});
        if (box != QLatin1String("none")) {
            const InspectedWidget window = program.waitForWindow(usageTitle);
            QCOMPARE(window.className(), QStringLiteral("QMessageBox"));
            QCOMPARE(window.buttons().size(), 1);
            QCOMPARE(QString(window.buttons().at(0)).remove(QLatin1Char('&')), QStringLiteral("OK"));
            if (box == QLatin1String("usage")) {
                QCOMPARE(window.property("icon"), QStringLiteral("Information"));
                QCOMPARE(window.property("text"),
                         QStringLiteral("<p>Error in arguments</b>: '") + commandLine +
                             QStringLiteral("'</p><b>Usage:</b><br/><em>start /wait orv.exe /a ALGORITHM /c CHECKSUM "
                                            "/f FILE</em><br/>Error Level: Valid=0 | Invalid=1 | Error=-1"));
            } else {
                QCOMPARE(window.property("icon"), QStringLiteral("Warning"));
                QCOMPARE(window.property("text"), QStringLiteral("File '") + box + QStringLiteral("' not found."));
            }
            pressKey(QStringLiteral("Return"));
        }
        QCOMPARE(program.exitCode(), shellCode(code));
        QCOMPARE(program.standardError(), QByteArray());
    }

    void everyCommandLineHasItsCodeAndTextWithoutADisplay_data() { addRows(); }

    void everyCommandLineHasItsCodeAndTextWithoutADisplay()
    {
        QFETCH(QString, commandLine);
        QFETCH(int, code);
        QFETCH(QString, box);

        InspectedProgram program(m_executable);
        withoutDisplay(program);
        startIn(program, {commandLine});
        QCOMPARE(program.exitCode(), shellCode(code));

        QString expected;
        if (box == QLatin1String("usage"))
            expected = QStringLiteral("Error in arguments: '") + commandLine +
                       QStringLiteral("'\nUsage:\nstart /wait orv.exe /a ALGORITHM /c CHECKSUM /f FILE\nError Level: "
                                      "Valid=0 | Invalid=1 | Error=-1\n");
        else if (box != QLatin1String("none"))
            expected = QStringLiteral("File '") + box + QStringLiteral("' not found.\n");
        QCOMPARE(QString::fromUtf8(program.standardError()), expected);
    }

    void separateArgumentsAreJoinedBySingleBlanks()
    {
        InspectedProgram program(m_executable);
        withoutDisplay(program);
        startIn(program, {QStringLiteral("/a"), QStringLiteral("md5"), QStringLiteral("/c"),
                          QStringLiteral("900150983cd24fb0d6963f7d28e17f72"), QStringLiteral("/f"),
                          QStringLiteral("two"), QStringLiteral("words.bin")});
        QCOMPARE(program.exitCode(), 0);
    }

    void everyRunSavesSettingsWithoutANameWhereItStands()
    {
        QVERIFY(QDir(m_folder.filePath(QStringLiteral("config"))).removeRecursively());
        InspectedProgram program(m_executable);
        withoutDisplay(program);
        startIn(program, {QStringLiteral("/a md5 /c 0 /f sample.bin")});
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(QDir(m_folder.filePath(QStringLiteral("config"))).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral(".xml")});
        QFile file(m_folder.filePath(QStringLiteral("config/.xml")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Settings version=\"\"/>\n"));
    }

    void aFolderThatCannotBeWrittenChangesNoResult()
    {
        const QByteArray folder = QFile::encodeName(m_folder.filePath(QStringLiteral("folder")));
        QCOMPARE(::chmod(folder.constData(), 0555), 0);
        InspectedProgram program(m_executable);
        withoutDisplay(program);
        program.bindByPermissions();
        program.setWorkingDirectory(m_folder.filePath(QStringLiteral("folder")));
        program.start({QStringLiteral("/a md5 /c 0 /f nothing")});
        QCOMPARE(program.exitCode(), 255);
        QCOMPARE(program.standardError(), "File 'nothing' not found.\ncould not save: " + folder + "/config/.xml\n");
        QCOMPARE(::chmod(folder.constData(), 0755), 0);
    }

    void namesInOtherScriptsAreFoundInTheBareLocale()
    {
        InspectedProgram program(m_executable);
        withoutDisplay(program);
        program.setVariable(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        startIn(program, {filledIn(QStringLiteral("/a md5 /c {md5} /f größe-文件.bin"))});
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(program.standardError(), QByteArray());
    }

    void platformsWithoutAScreenGetTheTextToo_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::newRow("offscreen") << QStringLiteral("offscreen");
        QTest::newRow("minimal") << QStringLiteral("minimal");
    }

    void platformsWithoutAScreenGetTheTextToo()
    {
        QFETCH(QString, platform);
        InspectedProgram program(m_executable);
        program.setVariable(QStringLiteral("QT_QPA_PLATFORM"), platform);
        startIn(program, {QStringLiteral("/a md5 /c 0 /f nothing")});
        QCOMPARE(program.exitCode(), 255);
        QCOMPARE(program.standardError(), QByteArray("File 'nothing' not found.\n"));
    }

    void aDisplayThatIsGoneCountsAsNone()
    {
        InspectedProgram program(m_executable);
        program.setVariable(QStringLiteral("DISPLAY"), QStringLiteral(":6543"));
        startIn(program, {QStringLiteral("/a md5 /c 0 /f sample.bin")});
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(program.standardError(), QByteArray());
    }

    void aWindowWithoutADisplayIsRefusedInWords_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no argument") << QStringList();
        QTest::newRow("a file") << QStringList{QStringLiteral("sample.bin")};
        QTest::newRow("a folder") << QStringList{QStringLiteral(".")};
    }

    void aWindowWithoutADisplayIsRefusedInWords()
    {
        QFETCH(QStringList, arguments);
        InspectedProgram program(m_executable);
        withoutDisplay(program);
        startIn(program, arguments);
        QCOMPARE(program.exitCode(), 255);
        QVERIFY(program.standardError().startsWith("orv: no display to open a window on."));
    }
};

QTEST_GUILESS_MAIN(TestExecutable)
#include "tst_executable.moc"
