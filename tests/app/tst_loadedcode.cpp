#include "tests/support/inspectedprogram.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// The built executable in a folder, and started from another, in which somebody has put code under every name that it
/// might be looked for: every file that the run as much as asks for is written down.
class TestLoadedCode final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString traceFile() const { return path(str("trace")); }

    void write(const QString &name, const QByteArray &content = {}) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    // Libraries that the program is linked with, plugins where the toolkit has them beside programs, and a file that
    // sends it elsewhere for them.
    void plantIn(const QString &folder) const
    {
        for (const char *library : {"libQt5Core.so.5", "libQt6Core.so.6", "libc.so.6", "libssl.so.1.1", "libssl.so.3"})
            write(folder + QLatin1Char('/') + str(library));
        for (const QString &plugins : {folder, folder + str("/plugins"), folder + str("/elsewhere")}) {
            for (const char *kind : {"platforms", "platformthemes", "styles", "imageformats", "iconengines", "generic",
                                     "platforminputcontexts", "accessible", "bearer", "networkinformation", "tls"})
                write(plugins + QLatin1Char('/') + str(kind) + str("/libplanted.so"));
        }
        write(folder + str("/qt.conf"), "[Paths]\nPrefix = .\nPlugins = elsewhere\n");
        write(folder + str("/qtlogging.ini"), "[Rules]\n*=true\n");
    }

    void prepare(const QString &programFolder)
    {
        m_folder = std::make_unique<QTemporaryDir>();
        plantIn(programFolder);
        plantIn(str("working"));
        write(str("working/sample.bin"), "abc");
        write(str("data/Kelvory/Orvanta/config/global.xml"), "<Settings><IsFirstStart>false</IsFirstStart>"
                                                             "<DisableSplashScreen>true</DisableSplashScreen>"
                                                             "</Settings>");
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_EXECUTABLE), path(programFolder + str("/orv"))));
    }

    void start(InspectedProgram &program, const QString &programFolder, const QStringList &arguments) const
    {
        program.setVariable(str("XDG_DATA_HOME"), path(str("data")));
        program.setWorkingDirectory(path(str("working")));
        program.searchForNoLeaks(); // which cannot be traced
        program.start(QStringList{str("-f"), str("-e"), str("trace=file"), str("-o"), traceFile(),
                                  path(programFolder + str("/orv"))} +
                      arguments);
    }

    // The files asked for below a folder, by names relative to it, and those asked for by a relative name.
    QString askedFor(const QString &folder) const
    {
        static const QRegularExpression name(str("^\\d+ +(\\w+)\\([^\"]*\"([^\"]*)\""));
        const QString below = path(folder) + QLatin1Char('/');
        QStringList names;
        QFile trace(traceFile());
        if (!trace.open(QIODevice::ReadOnly))
            QTest::qFail("there is no trace", __FILE__, __LINE__);
        int lines = 0;
        while (!trace.atEnd()) {
            const auto match = name.match(QString::fromUtf8(trace.readLine()));
            if (!match.hasMatch() || match.captured(2).isEmpty())
                continue;
            ++lines;
            const QString asked = QDir::cleanPath(match.captured(2));
            if (match.captured(1) == str("execve") || match.captured(1) == str("readlink"))
                continue; // the start itself, and whether a name is a link
            if (asked.startsWith(below))
                names << asked.mid(below.size());
            else if (!asked.startsWith(QLatin1Char('/')))
                names << asked;
        }
        if (lines < 100)
            QTest::qFail("the trace is too short to be one", __FILE__, __LINE__);
        names.removeDuplicates();
        names.sort();
        return names.join(QLatin1Char('|'));
    }

private Q_SLOTS:
    void theWindowLoadsNothingThatLiesAround_data()
    {
        QTest::addColumn<QString>("programFolder");
        QTest::newRow("downloads") << str("downloads");
        QTest::newRow("a name like a list of folders") << str("down:loads");
    }

    void theWindowLoadsNothingThatLiesAround()
    {
        QFETCH(QString, programFolder);
        prepare(programFolder);
        InspectedProgram program(str("strace"));
        start(program, programFolder, {});
        QVERIFY(!program.waitForText(str("Orvanta"), str("MainWindow"), "windowOpacity", str("1")).isNull());
        QVERIFY(!program.waitForText(str("Orvanta"), str("MainWindow"), "isActiveWindow", str("true")).isNull());
        pressKey(str("alt+F4"));
        QCOMPARE(program.exitCode(), 0);
        // "config" is that of the data directory, which is the current one by then.
        QCOMPARE(askedFor(programFolder), str("config|locale|portable|portable.txt"));
        QCOMPARE(askedFor(str("working")), str("config"));
    }

    void aVerificationLoadsNothingThatLiesAround_data() { theWindowLoadsNothingThatLiesAround_data(); }

    void aVerificationLoadsNothingThatLiesAround()
    {
        QFETCH(QString, programFolder);
        prepare(programFolder);
        InspectedProgram program(str("strace"));
        program.removeVariable(str("DISPLAY"));
        start(program, programFolder, {str("/a md5 /c 900150983cd24fb0d6963f7d28e17f72 /f sample.bin")});
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(askedFor(str("working")), str("config|config/.xml|sample.bin"));
        QCOMPARE(askedFor(programFolder), str("config|sample.bin"));
    }
};

QTEST_GUILESS_MAIN(TestLoadedCode)
#include "tst_loadedcode.moc"
