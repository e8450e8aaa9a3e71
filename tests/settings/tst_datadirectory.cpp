#include "tests/support/otherprograms.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <memory>

/// The choice of the data directory, by a program in a folder of its own.
class TestDataDirectory final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    static void chmod(const QString &name, mode_t mode) { ::chmod(QFile::encodeName(name).constData(), mode); }

    static void makeFile(const QString &name, const QByteArray &content = {})
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    // Runs the program from the folder "elsewhere", with a home and an XDG_DATA_HOME of its own, and returns what it
    // prints.
    QByteArray select(const QString &dataHome, bool isBound = false) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), path("home"));
        environment.remove(QStringLiteral("XDG_DATA_HOME"));
        if (!dataHome.isEmpty())
            environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(path("elsewhere"));
        const QStringList asIs{path("bin/program"), QStringLiteral("select")};
        const QStringList command = isBound ? boundByPermissions(asIs) : asIs;
        process.start(command.at(0), command.mid(1));
        return process.waitForFinished() ? process.readAllStandardOutput().trimmed() : QByteArray("did not end");
    }

    QByteArray selected(const char *name) const { return "selected " + QFile::encodeName(path(name)); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        chmod(m_folder->path(), 0777);
        for (const char *name : {"bin", "home", "elsewhere"}) {
            QVERIFY(QDir().mkdir(path(name)));
            chmod(path(name), 0777);
        }
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_SETTINGS_PROGRAM), path("bin/program")));
        chmod(path("bin/program"), 0755);
    }

    void aFolderOfTheUsersOwnIsMade()
    {
        QCOMPARE(select({}), selected("home/.local/share/Kelvory/Orvanta"));
        QVERIFY(QFileInfo(path("home/.local/share/Kelvory/Orvanta")).isDir());
    }

    void theUsersOwnChoiceOfAFolderIsFollowed()
    {
        QCOMPARE(select(path("data")), selected("data/Kelvory/Orvanta"));
        QVERIFY(!QFileInfo::exists(path("home/.local")));
    }

    void aSecondStartFindsTheFolderAndKeepsWhatIsInIt()
    {
        select({});
        makeFile(path("home/.local/share/Kelvory/Orvanta/kept"), "content");
        QCOMPARE(select({}), selected("home/.local/share/Kelvory/Orvanta"));
        QCOMPARE(QDir(path("home/.local/share/Kelvory/Orvanta")).entryList(QDir::Files),
                 QStringList{QStringLiteral("kept")});
        QCOMPARE(QDir(path("home/.local/share/Kelvory")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("Orvanta")});
    }

    void aFolderThatCannotBeMadeIsNotNoticed()
    {
        makeFile(path("file"));
        QCOMPARE(select(path("file")), selected("elsewhere"));
    }

    void aMarkerOfEitherKindSelectsTheProgramsFolder_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("folders");
        const QString portable = QStringLiteral("bin/portable");
        const QString text = QStringLiteral("bin/portable.txt");
        QTest::newRow("file") << QStringList{portable} << QStringList();
        QTest::newRow("text file") << QStringList{text} << QStringList();
        QTest::newRow("folder") << QStringList() << QStringList{portable};
        QTest::newRow("folder named like the text file") << QStringList() << QStringList{text};
        QTest::newRow("both files") << QStringList{portable, text} << QStringList();
        QTest::newRow("folder and file") << QStringList{text} << QStringList{portable};
    }

    void aMarkerOfEitherKindSelectsTheProgramsFolder()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, folders);
        for (const QString &file : std::as_const(files))
            makeFile(m_folder->filePath(file), "not read");
        for (const QString &folder : std::as_const(folders))
            QVERIFY(QDir().mkdir(m_folder->filePath(folder)));
        QCOMPARE(select({}), selected("bin"));
        QVERIFY(!QFileInfo::exists(path("bin/writable")));
        QVERIFY(!QFileInfo::exists(path("home/.local")));
    }

    void aMarkerInTheWorkingDirectoryCountsForNothing()
    {
        makeFile(path("elsewhere/portable"));
        QCOMPARE(select({}), selected("home/.local/share/Kelvory/Orvanta"));
    }

    void aMarkerInAnotherCaseCountsForNothing()
    {
        makeFile(path("bin/Portable"));
        QCOMPARE(select({}), selected("home/.local/share/Kelvory/Orvanta"));
    }

    void anOldProbeIsOverwrittenAndDeleted()
    {
        makeFile(path("bin/portable"));
        makeFile(path("bin/writable"), "old");
        QCOMPARE(select({}), selected("bin"));
        QVERIFY(!QFileInfo::exists(path("bin/writable")));
    }

    void aFolderThatCannotBeWrittenThrows_data()
    {
        QTest::addColumn<bool>("probeIsFolder");
        QTest::newRow("read-only folder") << false;
        QTest::newRow("a folder in the place of the probe") << true;
    }

    void aFolderThatCannotBeWrittenThrows()
    {
        QFETCH(bool, probeIsFolder);
        makeFile(path("bin/portable"));
        if (probeIsFolder)
            QVERIFY(QDir().mkdir(path("bin/writable")));
        else
            chmod(path("bin"), 0555);
        QCOMPARE(select({}, true),
                 QByteArray("thrown You must have write permission to the application directory for portable use."));
        chmod(path("bin"), 0777);
        QVERIFY(!QFileInfo::exists(path("home/.local")));
    }

    void aProbeThatCannotBeDeletedThrows()
    {
        makeFile(path("bin/portable"));
        makeFile(path("bin/writable"));
        chmod(path("bin/writable"), 0666);
        chmod(path("bin"), 0555);
        QCOMPARE(select({}, true),
                 QByteArray("thrown You must have write permission to the application directory for portable use."));
        chmod(path("bin"), 0777);
    }
};

QTEST_GUILESS_MAIN(TestDataDirectory)
#include "tst_datadirectory.moc"
