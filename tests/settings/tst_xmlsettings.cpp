#include "settings/xmlsettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <memory>

namespace {

const QString global = QStringLiteral("global");

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestXmlSettings final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_start = QDir::currentPath();

    static QByteArray savedFile()
    {
        QFile file(QStringLiteral("config/global.xml"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void writeFile(const QByteArray &content)
    {
        QDir().mkpath(QStringLiteral("config"));
        QFile file(QStringLiteral("config/global.xml"));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            QTest::qFail("cannot write a test file", __FILE__, __LINE__);
    }

    // A file of these children of Settings, loaded.
    static std::unique_ptr<XmlSettings> loaded(const QByteArray &children)
    {
        writeFile("<Settings>" + children + "</Settings>");
        auto settings = std::make_unique<XmlSettings>(global);
        settings->load();
        return settings;
    }

    static QByteArray stored(const char *name)
    {
        QFile file(QStringLiteral(ORVANTA_TEST_DATA "/settings/") + QString::fromLatin1(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such expected file");
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        QCoreApplication::setApplicationVersion(str("1.1.6.2"));
    }

    void cleanup() { QDir::setCurrent(m_start); }

    void theFolderIsMadeWhereTheProcessStands()
    {
        const XmlSettings settings{QString()};
        QVERIFY(QFileInfo(QStringLiteral("config")).isDir());
        QVERIFY(!QFileInfo::exists(QStringLiteral("config/.xml")));
    }

    void anEmptyProfileIsAFileNamedLikeItsExtension()
    {
        XmlSettings settings{QString()};
        settings.save();
        QVERIFY(QFileInfo(QStringLiteral("config/.xml")).isFile());
    }

    void aProfileIsBoundToTheDirectoryOfItsSetting()
    {
        XmlSettings settings{QString()};
        QVERIFY(QDir().mkdir(str("elsewhere")));
        QVERIFY(QDir::setCurrent(str("elsewhere")));
        settings.setProfile(global);
        QVERIFY(QDir::setCurrent(str("..")));
        settings.save();
        QVERIFY(QFileInfo(QStringLiteral("elsewhere/config/global.xml")).isFile());
        QVERIFY(!QFileInfo::exists(QStringLiteral("config/global.xml")));
    }

    void withoutAFileEveryReadIsItsDefault()
    {
        XmlSettings settings(global);
        settings.load();
        QCOMPARE(settings.value(str("Language"), str("none")), QVariant(str("none")));
        QCOMPARE(settings.value(str("Window/Opacity"), 1), QVariant(1));
        QVERIFY(!settings.value(str("Window"), QVariant()).isValid());
    }

    void theFirstSaveMakesTheFile()
    {
        XmlSettings settings(global);
        settings.load();
        settings.setValue(str("Language"), str("de_DE"));
        QCOMPARE(savedFile(), QByteArray());
        settings.save();
        QCOMPARE(savedFile(), QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                                         "<Settings version=\"1.1.6.2\">\n"
                                         "  <Language>de_DE</Language>\n"
                                         "</Settings>\n"));
    }

    void aWholeFileIsWrittenByteByByteAsExpected()
    {
        XmlSettings settings(global);
        settings.setValue(str("Language"), str("größe_文件 & <tag> \"quoted\""));
        settings.setValue(str("IsFirstStart"), false);
        settings.setValue(str("Window/StayOnTop"), false);
        settings.setValue(str("Window/Opacity"), 0.95);
        settings.setValue(str("Window/RestoreLayout"), true);
        settings.setValue(str("Window/WndGeometry"), QByteArray("01d9d0cb"));
        settings.setValue(str("VersionCheck/Auto"), true);
        settings.setValue(str("VersionCheck/TimeStamp"), str("16.11.2026"));
        settings.setValue(str("Window/Ticks"), 431950);
        settings.save();
        QCOMPARE(savedFile(), stored("written.xml"));
    }

    void savingTwiceWritesTheSame()
    {
        XmlSettings settings(global);
        settings.setValue(str("A/B"), 1);
        settings.save();
        const QByteArray first = savedFile();
        settings.save();
        QCOMPARE(savedFile(), first);
        settings.load();
        settings.save();
        QCOMPARE(savedFile(), first);
    }

    void theVersionIsThatOfTheSavingProgram()
    {
        writeFile("<Settings version=\"0.0.0.1\"/>");
        XmlSettings settings(global);
        settings.load();
        settings.save();
        QVERIFY(savedFile().contains("<Settings version=\"1.1.6.2\"/>"));
        QCoreApplication::setApplicationVersion(QString());
        settings.save();
        QVERIFY(savedFile().contains("<Settings version=\"\"/>"));
    }

    void theDeclarationStaysTheStoresOwn()
    {
        writeFile(
            "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n<!-- by hand --><Settings><A>1</A></Settings>");
        XmlSettings settings(global);
        settings.load();
        settings.save();
        QCOMPARE(savedFile(), QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                                         "<Settings version=\"1.1.6.2\">\n  <A>1</A>\n</Settings>\n"));
    }

    void aRootOfAnotherNameIsIgnoredAsAWhole()
    {
        for (const char *content : {"<settings><A>1</A></settings>", "<Other><Settings><A>1</A></Settings></Other>"}) {
            writeFile(content);
            XmlSettings settings(global);
            settings.setValue(str("B"), 2);
            settings.load();
            QCOMPARE(settings.value(str("A"), str("none")), QVariant(str("none")));
            QCOMPARE(settings.value(str("B"), 0), QVariant(str("2"))); // the tree in memory stays
        }
    }

    void loadingReplacesTheWholeTree()
    {
        writeFile("<Settings><A>1</A></Settings>");
        XmlSettings settings(global);
        settings.setValue(str("B"), 2);
        settings.load();
        QCOMPARE(settings.value(str("A"), 0), QVariant(str("1")));
        QCOMPARE(settings.value(str("B"), 0), QVariant(0));
    }

    void anElementWithoutTextReadsAsTheDefault()
    {
        const auto settings = loaded("<Window><Opacity/><Other><Deep>x</Deep></Other></Window>");
        QCOMPARE(settings->value(str("Window/Opacity"), 1), QVariant(1));
        QCOMPARE(settings->value(str("Window/Other"), 7), QVariant(7));
        QCOMPARE(settings->value(str("Window/Missing"), 1), QVariant(1));
        QCOMPARE(settings->value(str("Window/Other/Deep"), 7), QVariant(str("x")));
    }

    void anEmptyTextIsReadBackOnlyUntilTheNextStart()
    {
        XmlSettings settings(global);
        settings.setValue(str("A"), QString());
        QCOMPARE(settings.value(str("A"), str("default")), QVariant(QString()));
        settings.save();
        settings.load();
        QCOMPARE(settings.value(str("A"), str("default")), QVariant(str("default")));
    }

    void aTextOfBlanksIsReadBackOnlyUntilTheNextStart()
    {
        XmlSettings settings(global);
        settings.setValue(str("A"), str("  "));
        QCOMPARE(settings.value(str("A"), str("default")), QVariant(str("  ")));
        settings.save();
        settings.load();
        QCOMPARE(settings.value(str("A"), str("default")), QVariant(str("default")));
    }

    void blanksAroundATextStay()
    {
        XmlSettings settings(global);
        settings.setValue(str("A"), str(" a  b "));
        settings.save();
        settings.load();
        QCOMPARE(settings.value(str("A"), QVariant()), QVariant(str(" a  b ")));
    }

    void theFirstTextDecidesNotAllOfThem()
    {
        const auto settings = loaded("<A>one<B>two</B>three</A>");
        QCOMPARE(settings->value(str("A"), QVariant()), QVariant(str("one")));
        settings->setValue(str("A"), str("new"));
        settings->save();
        // Every text went, and the element stayed.
        QCOMPARE(settings->value(str("A"), QVariant()), QVariant(str("new")));
        QCOMPARE(settings->value(str("A/B"), QVariant()), QVariant(str("two")));
        QVERIFY(!savedFile().contains("three"));
    }

    void thePathNeverTurnsBack()
    {
        const auto settings = loaded("<Window><A>1</A></Window><Window><B>2</B></Window>");
        QCOMPARE(settings->value(str("Window/A"), 0), QVariant(str("1")));
        QCOMPARE(settings->value(str("Window/B"), 0), QVariant(0));
    }

    void namesAreCaseSensitive()
    {
        const auto settings = loaded("<Language>de_DE</Language>");
        QCOMPARE(settings->value(str("language"), str("none")), QVariant(str("none")));
    }

    void writingTwiceNeverDuplicatesAnElement()
    {
        XmlSettings settings(global);
        settings.setValue(str("Window/StayOnTop"), true);
        settings.setValue(str("Window/StayOnTop"), false);
        settings.save();
        QCOMPARE(savedFile().count("<Window>"), 1);
        QCOMPARE(savedFile().count("<StayOnTop>false</StayOnTop>"), 1);
        QVERIFY(!savedFile().contains("true"));
    }

    void valuesHaveTheTextFormsOfVariants()
    {
        XmlSettings settings(global);
        const auto form = [&settings](const QVariant &value) {
            settings.setValue(str("A"), value);
            return settings.value(str("A"), QVariant());
        };
        QCOMPARE(form(true), QVariant(str("true")));
        QCOMPARE(form(false), QVariant(str("false")));
        QCOMPARE(form(0.95), QVariant(str("0.95")));
        QCOMPARE(form(1.0), QVariant(str("1")));
        QCOMPARE(form(42), QVariant(str("42")));
        QCOMPARE(form(QByteArray("00ff")), QVariant(str("00ff")));
        QCOMPARE(form(QVariant()), QVariant(QString()));
        QVERIFY(form(str("anything")).toBool());
        QVERIFY(!form(str("FALSE")).toBool());
        QVERIFY(!form(str("0")).toBool());
        QVERIFY(!form(QString()).toBool());
        QCOMPARE(form(str("0.5")).toFloat(), 0.5F);
        QCOMPARE(form(str("half")).toFloat(), 0.0F);
    }

    void anElementWithAnIdIsInvisibleToAPlainRead()
    {
        const auto settings = loaded("<A id=\"x\">1</A><B id=\"\">2</B>");
        QCOMPARE(settings->value(str("A"), str("none")), QVariant(str("none")));
        QCOMPARE(settings->value(str("A"), str("none"), str("x")), QVariant(str("1")));
        QCOMPARE(settings->value(str("A"), str("none"), str("y")), QVariant(str("none")));
        QCOMPARE(settings->value(str("B"), str("none")), QVariant(str("none"))); // whatever the id is
    }

    void anIdIsLookedForAmongTheFollowingSiblingsOfAnyTag()
    {
        const auto settings = loaded("<A id=\"x\">1</A><A id=\"y\">2</A><C id=\"z\">3</C>");
        QCOMPARE(settings->value(str("A"), 0, str("y")), QVariant(str("2")));
        QCOMPARE(settings->value(str("A"), 0, str("z")), QVariant(str("3")));
        QCOMPARE(settings->value(str("C"), 0, str("x")), QVariant(0)); // not among those before it
    }

    void theSearchForAnIdEndsAtANodeThatIsNoElement()
    {
        const auto settings = loaded("<A id=\"x\">1</A><!-- end --><A id=\"y\">2</A>");
        QCOMPARE(settings->value(str("A"), 0, str("y")), QVariant(0));
    }

    void aNewIdTakesOverTheFirstElement()
    {
        const auto settings = loaded("<A id=\"x\">1</A><A id=\"y\">2</A>");
        settings->setValue(str("A"), 3, str("new"));
        QCOMPARE(settings->value(str("A"), 0, str("new")), QVariant(str("3")));
        QCOMPARE(settings->value(str("A"), 0, str("x")), QVariant(0));
        QCOMPARE(settings->value(str("A"), 0, str("y")), QVariant(str("2")));
        settings->save();
        QCOMPARE(savedFile().count("<A "), 2);
    }

    void aKnownIdKeepsItsElement()
    {
        const auto settings = loaded("<A id=\"x\">1</A><A id=\"y\">2</A>");
        settings->setValue(str("A"), 3, str("y"));
        QCOMPARE(settings->value(str("A"), 0, str("x")), QVariant(str("1")));
        QCOMPARE(settings->value(str("A"), 0, str("y")), QVariant(str("3")));
    }

    void anElementMadeWithAnIdCarriesIt()
    {
        XmlSettings settings(global);
        settings.setValue(str("A/B"), 1, str("x"));
        settings.save();
        QVERIFY(savedFile().contains("<A>\n    <B id=\"x\">1</B>\n  </A>"));
    }

    void aPlainWriteKeepsTheId()
    {
        const auto settings = loaded("<A id=\"x\">1</A>");
        settings->setValue(str("A"), 2);
        QCOMPARE(settings->value(str("A"), 0), QVariant(0));
        QCOMPARE(settings->value(str("A"), 0, str("x")), QVariant(str("2")));
    }

    void anEmptyPartMatchesTheFirstChildOfAnyName()
    {
        const auto settings = loaded("<A><B>deep</B></A><C>c</C>");
        QCOMPARE(settings->value(str("A/"), 0), QVariant(str("deep")));
        QCOMPARE(settings->value(str("/B"), 0), QVariant(str("deep")));
        QCOMPARE(settings->value(QString(), str("none")), QVariant(str("none"))); // A has no text of its own
        QCOMPARE(loaded("<C>c</C>")->value(QString(), 0), QVariant(str("c")));
    }

    void aNameThatXmlCannotHoldHarmsNothing()
    {
        XmlSettings settings(global);
        settings.setValue(str("A"), 1);
        settings.setValue(str("B//"), 2);
        settings.setValue(str("C D/<"), 3);
        settings.save();
        settings.load();
        QCOMPARE(settings.value(str("A"), 0), QVariant(str("1")));
    }

    void aCharacterThatXmlCannotHoldIsLeftOut()
    {
        XmlSettings settings(global);
        settings.setValue(str("A"), QString(QChar(1)) + str("x") + QChar(0xfffe) + str("y"));
        settings.setValue(str("B"), 2);
        settings.save();
        settings.load();
        QCOMPARE(settings.value(str("A"), 0), QVariant(str("xy")));
        QCOMPARE(settings.value(str("B"), 0), QVariant(str("2")));
    }

    void everyTextSurvivesTheFile()
    {
        XmlSettings settings(global);
        const QString text = str("<&>\"' ]]> &amp; é 文 \xf0\x9f\x93\xa6\ttab");
        settings.setValue(str("A"), text);
        settings.save();
        XmlSettings again(global);
        again.load();
        QCOMPARE(again.value(str("A"), 0), QVariant(text));
    }

    void aFileThatBreaksOffKeepsWhatItHad()
    {
        writeFile("<Settings><A>1</A><Window><Opacity>0.5</Opacity><Stay");
        XmlSettings settings(global);
        settings.load();
        QCOMPARE(settings.value(str("A"), 0), QVariant(str("1")));
        QCOMPARE(settings.value(str("Window/Opacity"), 1), QVariant(str("0.5")));
    }

    void whatIsNoFileCountsAsMissing_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"folder", "pipe", "link to nothing", "link to itself", "device"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    void whatIsNoFileCountsAsMissing()
    {
        QFETCH(QString, kind);
        XmlSettings settings(global);
        const char *path = "config/global.xml";
        const QString name = QString::fromLatin1(path);
        if (kind == str("folder"))
            QVERIFY(QDir().mkdir(name));
        else if (kind == str("pipe"))
            QCOMPARE(::mkfifo(path, 0600), 0);
        else if (kind == str("link to nothing"))
            QVERIFY(QFile::link(str("nothing"), name));
        else if (kind == str("link to itself"))
            QVERIFY(QFile::link(str("global.xml"), name));
        else
            QVERIFY(QFile::link(str("/dev/zero"), name));
        settings.setValue(str("A"), 1);
        settings.load();
        QCOMPARE(settings.value(str("A"), 0), QVariant(str("1")));
    }

    void aFailedSaveIsOneLineOnTheDebugStream()
    {
        XmlSettings settings(global);
        QVERIFY(QDir().mkdir(str("config/global.xml")));
        QTest::ignoreMessage(QtDebugMsg,
                             ("could not save: " + m_folder->path().toLocal8Bit() + "/config/global.xml").constData());
        settings.setValue(str("A"), 1);
        settings.save();
        // What is in memory survives, and a later save succeeds.
        QVERIFY(QDir().rmdir(str("config/global.xml")));
        settings.save();
        QVERIFY(savedFile().contains("<A>1</A>"));
    }

    void aMissingFolderIsFoundOutBySaving()
    {
        XmlSettings settings(global);
        QVERIFY(QDir().rmdir(str("config")));
        QTest::ignoreMessage(QtDebugMsg,
                             ("could not save: " + m_folder->path().toLocal8Bit() + "/config/global.xml").constData());
        settings.save();
        settings.setProfile(global);
        settings.save();
        QVERIFY(!savedFile().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestXmlSettings)
#include "tst_xmlsettings.moc"
