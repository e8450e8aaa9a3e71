#include "settings/appsettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <type_traits>

class TestAppSettings final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }
    void cleanupTestCase() { QDir::setCurrent(QStringLiteral("/")); }

    void everyKeyHasItsName_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("name");
        const QStringList names{QStringLiteral("IsFirstStart"),
                                QStringLiteral("Language"),
                                QString(),
                                QStringLiteral("Window/Opacity"),
                                QStringLiteral("Window/StayOnTop"),
                                QStringLiteral("ProfileManual"),
                                QStringLiteral("ProfileAuto"),
                                QStringLiteral("Window/WndState"),
                                QStringLiteral("Window/RestoreLayout"),
                                QStringLiteral("Window/RestoreGeometry"),
                                QStringLiteral("Window/WndGeometry"),
                                QStringLiteral("DisableSplashScreen"),
                                QStringLiteral("VersionCheck/Auto"),
                                QStringLiteral("VersionCheck/TimeStamp")};
        for (int key = 0; key < names.size(); ++key)
            QTest::addRow("%d", key) << key << names.at(key);
        QTest::newRow("none such") << 99 << QString();
        QTest::newRow("negative") << -1 << QString();
    }

    void everyKeyHasItsName()
    {
        QFETCH(int, key);
        QTEST(AppSettings::instance().keyName(key), "name");
    }

    void theEnumeratorsAreTheKeys()
    {
        QCOMPARE(int(IsFirstStart), 0);
        QCOMPARE(int(Language), 1);
        QCOMPARE(int(WindowOpacity), 3);
        QCOMPARE(int(WindowStayOnTop), 4);
        QCOMPARE(int(ProfileManual), 5);
        QCOMPARE(int(ProfileAuto), 6);
        QCOMPARE(int(WindowState), 7);
        QCOMPARE(int(WindowRestoreLayout), 8);
        QCOMPARE(int(WindowRestoreGeometry), 9);
        QCOMPARE(int(WindowGeometry), 10);
        QCOMPARE(int(DisableSplashScreen), 11);
        QCOMPARE(int(VersionCheckAuto), 12);
        QCOMPARE(int(VersionCheckTimeStamp), 13);
    }

    void aFreshStoreYieldsTheDefaultOfEveryReader()
    {
        AppSettings &settings = AppSettings::instance();
        for (int key = 0; key <= 13; ++key) {
            if (key != UnusedKey)
                QCOMPARE(settings.value(key, QStringLiteral("default"), QString()),
                         QVariant(QStringLiteral("default")));
        }
    }

    void aKeyReadsWhatItsNameWrote()
    {
        AppSettings &settings = AppSettings::instance();
        settings.setValue(settings.keyName(WindowState), QByteArray("00ff"));
        QCOMPARE(settings.value(WindowState, QVariant()).toByteArray(), QByteArray("00ff"));
        QCOMPARE(settings.value(QStringLiteral("Window/WndState"), QVariant()), QVariant(QStringLiteral("00ff")));
        QCOMPARE(settings.value(QStringLiteral("Window/State"), 5), QVariant(5));
    }

    void thereIsOneStore()
    {
        QCOMPARE(&AppSettings::instance(), &AppSettings::instance());
        QVERIFY(!std::is_default_constructible_v<AppSettings>);
        QVERIFY(!std::is_copy_constructible_v<AppSettings>);
    }

    void theStoreCanBeHeldByEitherBase()
    {
        AppSettings &settings = AppSettings::instance();
        QCOMPARE(static_cast<void *>(static_cast<SettingsBase *>(&settings)), static_cast<void *>(&settings));
        QVERIFY(static_cast<void *>(static_cast<XmlSettings *>(&settings)) != static_cast<void *>(&settings));
    }
};

QTEST_GUILESS_MAIN(TestAppSettings)
#include "tst_appsettings.moc"
