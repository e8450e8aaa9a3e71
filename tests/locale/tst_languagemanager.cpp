#include "locale/languagemanager.h"
#include "settings/appsettings.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <sys/stat.h>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A window of a few texts, as those of the program do it.
class TestWindow final : public QWidget
{
    Q_OBJECT

public:
    TestWindow()
    {
        auto *layout = new QVBoxLayout(this);
        for (QLabel **label : {&m_hello, &m_open, &m_files}) {
            *label = new QLabel(this);
            layout->addWidget(*label);
        }
        retranslate();
    }

    QStringList texts() const { return {m_hello->text(), m_open->text(), m_files->text()}; }
    int changes() const { return m_changes; }

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            ++m_changes;
            retranslate();
        }
        QWidget::changeEvent(event);
    }

private:
    void retranslate()
    {
        m_hello->setText(QCoreApplication::translate("Window", "Hello"));
        m_open->setText(QCoreApplication::translate("Window", "Open", "a file"));
        m_files->setText(QCoreApplication::translate("Window", "%n file(s)", nullptr, 2));
    }

    QLabel *m_hello = nullptr;
    QLabel *m_open = nullptr;
    QLabel *m_files = nullptr;
    int m_changes = 0;
};

const QStringList english{QStringLiteral("Hello"), QStringLiteral("Open"), QStringLiteral("2 file(s)")};
const QStringList german{QStringLiteral("Hallo"), QStringLiteral("Hallo 1"), QStringLiteral("2 Dateien")};
const QStringList french{QStringLiteral("Bonjour"), QStringLiteral("Bonjour 1"), QStringLiteral("2 fichiers")};

} // namespace

class TestLanguageManager final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_data;
    QDir m_locale;

    static QString stored() { return AppSettings::instance().value(Language, QVariant()).toString(); }

    static void store(const QString &code)
    {
        AppSettings::instance().setValue(AppSettings::instance().keyName(Language), code);
    }

    void addCatalogue(const QString &name, const char *content = "de_DE.qm")
    {
        QVERIFY(QFile::copy(QStringLiteral(ORVANTA_TEST_CATALOGUES "/") + str(content), m_locale.filePath(name)));
    }

    // One column of the list, top to bottom.
    static QStringList column(const QTreeWidget &tree, int number)
    {
        QStringList texts;
        for (int i = 0; i < tree.topLevelItemCount(); ++i)
            texts << tree.topLevelItem(i)->text(number);
        return texts;
    }

    static void fill(QTreeWidget &tree)
    {
        tree.setColumnCount(3);
        LanguageManager::instance().fillLanguageTree(&tree);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_data.path()));
        m_locale.setPath(QCoreApplication::applicationDirPath() + str("/locale"));
    }

    void init()
    {
        QVERIFY(!m_locale.exists() || m_locale.removeRecursively());
        QVERIFY(m_locale.mkpath(str(".")));
        store(QString());
    }

    void cleanup() { LanguageManager::destroyInstance(); }

    void cleanupTestCase()
    {
        m_locale.removeRecursively();
        QDir::setCurrent(str("/"));
    }

    void withoutAFolderThereIsOnlyEnglish()
    {
        QVERIFY(m_locale.removeRecursively());
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        QCOMPARE(column(tree, 0), QStringList{str("en_UK")});
        QCOMPARE(column(tree, 1), QStringList{str("English")});
        QCOMPARE(column(tree, 2), QStringList{str("United Kingdom")});
        QCOMPARE(tree.currentItem(), tree.topLevelItem(0));
    }

    void cataloguesFollowEnglishByFileNameIgnoringCase()
    {
        for (const char *name : {"x-de_DE.qm", "de_AT.qm", "B-fr_FR.qm", "a-it_IT.qm"})
            addCatalogue(str(name));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        QCOMPARE(column(tree, 0), (QStringList{str("en_UK"), str("it_IT"), str("fr_FR"), str("de_AT"), str("de_DE")}));
        QCOMPARE(column(tree, 1),
                 (QStringList{str("English"), str("Italian"), str("French"), str("German"), str("German")}));
        QCOMPARE(column(tree, 2),
                 (QStringList{str("United Kingdom"), str("Italy"), str("France"), str("Austria"), str("Germany")}));
    }

    void theCodeIsCutOutOfTheFileName_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("code");
        QTest::newRow("prefix") << str("app-de_DE.qm") << str("de_DE");
        QTest::newRow("no prefix") << str("de_DE.qm") << str("de_DE");
        QTest::newRow("first dash only") << str("app-pt-BR.qm") << str("pt-BR");
        QTest::newRow("last dot only") << str("a.b-de_DE.x.qm") << str("de_DE.x");
        QTest::newRow("nothing left") << str("app-.qm") << QString();
        QTest::newRow("upper-case extension is listed too") << str("app-de_DE.QM") << str("de_DE");
    }

    void theCodeIsCutOutOfTheFileName()
    {
        QFETCH(QString, fileName);
        QFETCH(QString, code);
        addCatalogue(fileName);
        LanguageManager::instance().loadLanguages();
        const auto language = LanguageManager::instance().findLanguage(code);
        QVERIFY(language);
        QCOMPARE(language->fileName, fileName);
        QCOMPARE(language->flag, m_locale.path() + str("/") + code + str(".png"));
    }

    void foldersAndBrokenFilesAreListedToo()
    {
        QVERIFY(m_locale.mkdir(str("folder-fr_FR.qm")));
        QFile broken(m_locale.filePath(str("broken-it_IT.qm")));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no catalogue") > 0);
        QFile other(m_locale.filePath(str("readme.txt")));
        QVERIFY(other.open(QIODevice::WriteOnly));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        QCOMPARE(column(tree, 0), (QStringList{str("en_UK"), str("it_IT"), str("fr_FR")}));
    }

    void anUnknownCodeHasTheNamesOfTheFallback()
    {
        addCatalogue(str("app-xx_nonsense.qm"));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        const QLocale fallback(str("xx_nonsense"));
        QCOMPARE(column(tree, 1).at(1), QLocale::languageToString(fallback.language()));
    }

    void theBuiltInEntryStandsWithItsFields()
    {
        LanguageManager::instance().loadLanguages();
        const auto language = LanguageManager::instance().findLanguage(str("en_UK"));
        QVERIFY(language);
        QCOMPARE(language->language, str("English"));
        QCOMPARE(language->country, str("United Kingdom"));
        QCOMPARE(language->fileName, QString());
        QCOMPARE(language->flag, str(":/img/en.png"));
        QVERIFY(!LanguageManager::instance().findLanguage(str("en_uk")));
        QVERIFY(!LanguageManager::instance().findLanguage(str("en_EN")));
    }

    void theStoredLanguageIsActivated()
    {
        addCatalogue(str("x-de_DE.qm"));
        store(str("de_DE"));
        LanguageManager::instance().loadLanguages();
        QCOMPARE(TestWindow().texts(), german);
        QCOMPARE(stored(), str("de_DE"));
    }

    void aStoredLanguageWithoutACatalogueIsEnglishAndStaysStored()
    {
        addCatalogue(str("x-de_DE.qm"));
        for (const char *code : {"fr_FR", "DE_de", ""}) {
            store(str(code));
            LanguageManager::instance().loadLanguages();
            QCOMPARE(TestWindow().texts(), english);
            QCOMPARE(stored(), str(code));
            LanguageManager::destroyInstance();
        }
    }

    void everyTextOfAnOpenWindowChangesWithTheLanguage()
    {
        addCatalogue(str("x-de_DE.qm"));
        addCatalogue(str("x-fr_FR.qm"), "fr_FR.qm");
        LanguageManager &languages = LanguageManager::instance();
        languages.loadLanguages();
        TestWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.texts(), english);

        languages.selectLanguage(str("de_DE"));
        QTRY_COMPARE(window.texts(), german);
        QCOMPARE(stored(), str("de_DE"));
        languages.selectLanguage(str("fr_FR"));
        QTRY_COMPARE(window.texts(), french);
        languages.selectLanguage(str("en_UK"));
        QTRY_COMPARE(window.texts(), english);
        QCOMPARE(stored(), str("en_UK"));
        languages.selectLanguage(str("de_DE"));
        QTRY_COMPARE(window.texts(), german);
        languages.selectLanguage(str("en_EN"));
        QTRY_COMPARE(window.texts(), english);
        QCOMPARE(stored(), str("en_EN"));
        languages.selectLanguage(str("de_DE"));
        QTRY_COMPARE(window.texts(), german);
        languages.selectLanguage(str("no_SUCH"));
        QTRY_COMPARE(window.texts(), english);
        QCOMPARE(stored(), str("no_SUCH"));
    }

    void theSpecialCodeIsNotLookedUp()
    {
        addCatalogue(str("x-en_EN.qm"));
        LanguageManager::instance().loadLanguages();
        LanguageManager::instance().selectLanguage(str("en_EN"));
        QCOMPARE(TestWindow().texts(), english);
    }

    void aBrokenCatalogueIsEnglish()
    {
        addCatalogue(str("x-de_DE.qm"));
        addCatalogue(str("x-fr_FR.qm"), "fr_FR.qm");
        LanguageManager::instance().loadLanguages();
        QVERIFY(QFile::resize(m_locale.filePath(str("x-fr_FR.qm")), 60));
        LanguageManager::instance().selectLanguage(str("de_DE"));
        LanguageManager::instance().selectLanguage(str("fr_FR"));
        QCOMPARE(TestWindow().texts(), english);
        QCOMPARE(stored(), str("fr_FR"));
    }

    void ofTwoCataloguesOfOneCodeTheFirstIsUsed()
    {
        addCatalogue(str("a-de_DE.qm"));
        addCatalogue(str("b-de_DE.qm"), "fr_FR.qm");
        LanguageManager::instance().loadLanguages();
        LanguageManager::instance().selectLanguage(str("de_DE"));
        QCOMPARE(TestWindow().texts(), german);
    }

    void theTreeSelectsTheStoredLanguage()
    {
        addCatalogue(str("x-de_DE.qm"));
        LanguageManager::instance().loadLanguages();
        for (const auto &row : {qMakePair(str("de_DE"), str("de_DE")), qMakePair(str("DE_de"), str("en_UK")),
                                qMakePair(QString(), str("en_UK"))}) {
            store(row.first);
            QTreeWidget tree;
            fill(tree);
            QCOMPARE(tree.currentItem()->text(0), row.second);
            QCOMPARE(stored(), row.first); // filling stores nothing by itself
        }
    }

    void theColumnOfCodesIsAsWideAsTheNamesOfTheLanguages()
    {
        addCatalogue(str("app-a-very-long-code-that-does-not-count.qm"));
        addCatalogue(str("app-pt_BR.qm"));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        QFont font = tree.font();
        font.setPointSize(10);
        tree.setFont(font);
        fill(tree);
        int longest = 0;
        const QStringList names = column(tree, 1);
        for (const QString &name : names)
            longest = qMax(longest, int(name.length()));
        QVERIFY(longest >= int(str("Portuguese").length()));
        QCOMPARE(tree.columnWidth(0), (longest + 4) * 10);
    }

    void flagsStandBesideTheCodes()
    {
        addCatalogue(str("x-de_DE.qm"));
        addCatalogue(str("x-fr_FR.qm"));
        QPixmap flag(20, 14);
        flag.fill(Qt::red);
        QVERIFY(flag.save(m_locale.filePath(str("de_DE.png"))));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        QVERIFY(!tree.topLevelItem(1)->icon(0).pixmap(20, 14).isNull());
        QVERIFY(tree.topLevelItem(2)->icon(0).pixmap(20, 14).isNull());
    }

    void whatCannotBeAFlagIsNotOpened()
    {
        for (const char *code : {"aa", "bb", "cc", "dd"})
            addCatalogue(str("x-%1.qm").arg(str(code)));
        QPixmap flag(20, 14);
        flag.fill(Qt::red);
        QVERIFY(flag.save(m_locale.filePath(str("aa.png"))));
        QCOMPARE(::mkfifo(QFile::encodeName(m_locale.filePath(str("bb.png"))).constData(), 0600), 0);
        QVERIFY(flag.save(m_locale.filePath(str("cc.png"))));
        QCOMPARE(::mkfifo(QFile::encodeName(m_locale.filePath(str("cc@2x.png"))).constData(), 0600), 0);
        QVERIFY(flag.save(m_locale.filePath(str("dd.png"))));
        QVERIFY(QFile::resize(m_locale.filePath(str("dd.png")), 100000));
        LanguageManager::instance().loadLanguages();
        QTreeWidget tree;
        fill(tree);
        QVERIFY(!tree.topLevelItem(1)->icon(0).pixmap(20, 14).isNull());
        for (const int item : {2, 3, 4})
            QVERIFY(tree.topLevelItem(item)->icon(0).isNull());
    }

    void destroyingTheManagerRemovesTheTranslation()
    {
        addCatalogue(str("x-de_DE.qm"));
        LanguageManager::instance().loadLanguages();
        LanguageManager::instance().selectLanguage(str("de_DE"));
        LanguageManager::destroyInstance();
        QCOMPARE(TestWindow().texts(), english);
        LanguageManager::destroyInstance(); // makes one to delete it
    }
};

QTEST_MAIN(TestLanguageManager)
#include "tst_languagemanager.moc"
