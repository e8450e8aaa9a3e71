#pragma once

#include "tests/support/inspectedprogram.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// What the tests that use the built executable as a person does have in common: a folder of their own for each test,
/// with the program's data in it, and its window.
class ProgramTest : public QObject
{
    Q_OBJECT

protected:
    static QString str(const char *text) { return QString::fromUtf8(text); }

    inline static const QString windowTitle = QStringLiteral("Orvanta");
    inline static const QString md5OfAbc = QStringLiteral("900150983cd24fb0d6963f7d28e17f72");
    inline static const QString settingsFile = QStringLiteral("data/Kelvory/Orvanta/config/global.xml");

    QString path(const QString &name) const { return m_folder->filePath(name); }

    /// A file in the test's folder; returns its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
        return file.fileName();
    }

    /// The program from the build's own folder, where its catalogues are, with a data folder of its own.
    void prepare(InspectedProgram &program) const
    {
        program.setVariable(str("XDG_DATA_HOME"), path(str("data")));
        program.setVariable(str("LC_ALL"), str("en_US.UTF-8"));
        program.setWorkingDirectory(m_folder->path());
    }

    /// Settings of a program that has been started before and shows no splash, and `more` of them.
    static QByteArray settings(const QByteArray &more = {})
    {
        return "<Settings><IsFirstStart>false</IsFirstStart><DisableSplashScreen>true</DisableSplashScreen>" + more +
               "</Settings>";
    }

    void writeSettings(const QByteArray &more = {}) const { write(settingsFile, settings(more)); }

    /// The text of a saved setting, or "none".
    QString saved(const QString &name, const QString &fileName = settingsFile) const
    {
        QFile file(path(fileName));
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
            return str("no settings");
        QDomElement element = document.documentElement();
        const QStringList parts = name.split(QLatin1Char('/'));
        for (const QString &part : parts)
            element = element.firstChildElement(part);
        return element.isNull() ? str("none") : element.text();
    }

    static void waitUntilReady(InspectedProgram &program)
    {
        // The window is transparent until everything else is done.
        QVERIFY(!program.waitForText(windowTitle, str("MainWindow"), "windowOpacity", str("1")).isNull());
        QVERIFY(!program.waitForText(windowTitle, str("MainWindow"), "isActiveWindow", str("true")).isNull());
    }

    /// The most memory that a running program has had in use so far, in KiB. Sanitizers need a lot themselves, so that
    /// it says nothing with them: it is always 1 then.
    static qint64 peakKibibytes(InspectedProgram &program)
    {
#ifdef __SANITIZE_ADDRESS__
        return program.isRunning() ? 1 : -1;
#else
        QFile file(str("/proc/%1/status").arg(program.process().processId()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray status = file.readAll();
        const auto start = status.indexOf("VmHWM:") + 6;
        return status.mid(start, status.indexOf(" kB", start) - start).trimmed().toLongLong();
#endif
    }

    /// From the main window to the dialog of the options, with the keyboard.
    static void openOptions(InspectedProgram &program)
    {
        click(program.waitForText(windowTitle, str("toolBar"), "visible", str("true"))); // beside the button: nothing
        for (int i = 0; i < 5; ++i)
            pressKey(str("Tab"));
        pressKey(str("space"));
        QVERIFY(!program.waitForWindow(str("Settings")).isNull());
    }

    /// Drags a file, so many times over, out of another program's window and drops it on the upper group.
    void drop(InspectedProgram &program, const QString &file, int count) const
    {
        InspectedProgram source(QStringLiteral(ORVANTA_DRAG_SOURCE));
        prepare(source);
        source.start({file, QString::number(count)});
        const InspectedWidget from = source.waitForWindow(str("drag source"));
        QVERIFY(!from.isNull());
        const InspectedWidget to = program.waitForText(windowTitle, str("lineEditPath"), "text", QString());
        QVERIFY(!from.geometry().intersects(to.geometry()));
        dragMouse(from.geometry(), to.geometry());
        // The source hands over what is dropped, and has to be there for that.
        QVERIFY(!program.waitForText(windowTitle, str("lineEditPath"), "text", file).isNull());
    }

    static void close(InspectedProgram &program)
    {
        // The window manager may miss a key while it is busy with a window that has just come.
        for (int i = 0; i < 3 && program.isRunning(); ++i) {
            pressKey(str("alt+F4"));
            program.process().waitForFinished(10000);
        }
        QCOMPARE(program.exitCode(), 0);
    }

protected Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        parkMouse(); // a widget under it would have its say in the status bar
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
