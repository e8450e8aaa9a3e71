#pragma once

#include "locale/languagemanager.h"
#include "settings/appsettings.h"
#include "ui/visualstyle.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// What the tests of the windows have in common: a folder of their own, the program's identity, its style, and settings
/// that every test finds empty.
class UiTest : public QObject
{
    Q_OBJECT

protected:
    static QString str(const char *text) { return QString::fromUtf8(text); }

    static QVariant setting(SettingKey key) { return AppSettings::instance().value(key, QVariant()); }

    static void setSetting(SettingKey key, const QVariant &value)
    {
        AppSettings::instance().setValue(AppSettings::instance().keyName(key), value);
    }

    /// A file in the test's folder; returns its path.
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
        return file.fileName();
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Empty settings, and the built-in English beside German.
    void startAfresh()
    {
        // The store has no way to forget; an empty file of another profile makes it.
        QDir().mkpath(str("config"));
        write(str("config/global.xml"), "<Settings/>");
        AppSettings::instance().setProfile(str("global"));
        AppSettings::instance().load();
        QDir(QCoreApplication::applicationDirPath() + str("/locale")).removeRecursively();
        installGerman();
        LanguageManager::destroyInstance();
        LanguageManager::instance().loadLanguages();
    }

    /// Puts the program's catalogue for German where the language manager finds it.
    static void installGerman()
    {
        const QDir folder(QCoreApplication::applicationDirPath());
        folder.mkpath(str("locale"));
        QFile::copy(QStringLiteral(ORVANTA_CATALOGUES "/orvanta-de_DE.qm"),
                    folder.filePath(str("locale/orvanta-de_DE.qm")));
    }

protected Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        QCoreApplication::setApplicationName(str("Orvanta"));
        QCoreApplication::setApplicationVersion(str("1.1.6.2"));
        VisualStyle::useWidgetStyle();
        QApplication::setQuitOnLastWindowClosed(false);
        VisualStyle::apply();
    }

    void init() { startAfresh(); }

    void cleanupTestCase()
    {
        LanguageManager::destroyInstance();
        QDir::setCurrent(str("/"));
    }

private:
    QTemporaryDir m_folder;
};
