#include "configuration.h"
#include "tests/support/inspectedprogram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <memory>

namespace {

const QString title = QStringLiteral("We are sorry, but an error has occurred");

QString knownText(const char *text)
{
    return QStringLiteral("Error Type: ") + QString::fromLatin1(text) +
           QStringLiteral("\n\nIf you need help, please contact us at: ") +
           QString::fromLatin1(Configuration::supportAddress);
}

} // namespace

/// What ends the built executable: the box, standard error and the exit code.
class TestErrorBoxes final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_executable;

    void expectBox(InspectedProgram &program, const QString &text)
    {
        const InspectedWidget box = program.waitForWindow(title);
        QCOMPARE(box.className(), QStringLiteral("QMessageBox"));
        QCOMPARE(box.property("text"), text);
        QCOMPARE(box.property("icon"), QStringLiteral("Critical"));
        QCOMPARE(box.buttons().size(), 1);
        QCOMPARE(program.windows().size(), 1); // nothing else is left of the program
        pressKey(QStringLiteral("Return"));
        QCOMPARE(program.exitCode(), 255);
        QVERIFY2(program.standardError().contains(text.toUtf8() + '\n'), "standard error lacks the text");
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_executable = m_folder->filePath(QStringLiteral("orv"));
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_EXECUTABLE), m_executable));
    }

    void aPortableProgramThatCannotWriteEndsInAnErrorBox()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("portable")));
        InspectedProgram program(m_executable);
        program.bindByPermissions();
        const QString workingDirectory = m_folder->filePath(QStringLiteral("work"));
        QVERIFY(QDir().mkdir(workingDirectory));
        QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0555), 0);
        program.setWorkingDirectory(workingDirectory);
        program.start({});
        expectBox(program, knownText("You must have write permission to the application directory for portable use."));
        QVERIFY(!QDir(m_folder->filePath(QStringLiteral("config"))).exists());
    }

    void whatEscapesTheEventLoopEndsInAnErrorBox_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("a character string is known")
            << QStringLiteral("character string") << knownText("thrown by a test");
        QTest::newRow("a text is unknown") << QStringLiteral("text")
                                           << QStringLiteral("Error Type: unknown\n\nPlease contact us at: ") +
                                                  QString::fromLatin1(Configuration::supportAddress);
    }

    void whatEscapesTheEventLoopEndsInAnErrorBox()
    {
        QFETCH(QString, kind);
        QFETCH(QString, text);
        const QString settings = m_folder->filePath(QStringLiteral("data/Kelvory/Orvanta/config/global.xml"));
        // Neither the first start's dialog nor the splash: the exception is to leave the main event loop.
        QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
        QFile before(settings);
        QVERIFY(before.open(QIODevice::WriteOnly));
        QVERIFY(before.write("<Settings version=\"0\"><IsFirstStart>false</IsFirstStart>"
                             "<DisableSplashScreen>true</DisableSplashScreen></Settings>") > 0);
        before.close();
        InspectedProgram program(m_executable);
        program.setVariable(QStringLiteral("XDG_DATA_HOME"), m_folder->filePath(QStringLiteral("data")));
        program.setVariable(QStringLiteral("ORVANTA_INSPECTOR_THROWS"), kind);
        program.start({});
        expectBox(program, text);
        // Unwinding has saved the settings.
        QFile file(settings);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<Settings version=\"1.1.6.2\""));
    }
};

QTEST_GUILESS_MAIN(TestErrorBoxes)
#include "tst_errorboxes.moc"
