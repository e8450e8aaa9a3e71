#include "locale/languagemanager.h"

#include "locale/catalogue.h"
#include "settings/appsettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QTreeWidget>

#include <algorithm>

namespace {

// Of "orvanta-de_DE.qm" and of "de_DE.qm" the code is de_DE; that of "app-pt-BR.qm" is pt-BR.
QString codeOf(const QString &fileName)
{
    const QString name = fileName.left(fileName.lastIndexOf(QLatin1Char('.')));
    return name.mid(name.indexOf(QLatin1Char('-')) + 1);
}

QString englishCountryName(const QLocale &locale)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 2, 0)
    return QLocale::territoryToString(locale.territory());
#else
    return QLocale::countryToString(locale.country());
#endif
}

// Whether a flag can be handed to the toolkit, which waits for a pipe and unpacks whatever a picture holds.
bool isSmallFile(const QString &fileName)
{
    constexpr qint64 maximumSize = 1 << 16;
    const QFileInfo info(fileName);
    return !info.exists() || (info.isFile() && info.size() <= maximumSize);
}

QIcon flagIcon(const QString &fileName)
{
    QString twiceAsFine = fileName;
    twiceAsFine.insert(fileName.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
    return isSmallFile(fileName) && isSmallFile(twiceAsFine) ? QIcon(fileName) : QIcon();
}

} // namespace

LanguageManager *LanguageManager::s_instance = nullptr;

LanguageManager &LanguageManager::instance()
{
    if (!s_instance)
        s_instance = new LanguageManager; // deleted by destroyInstance()
    return *s_instance;
}

void LanguageManager::destroyInstance()
{
    delete &instance();
    s_instance = nullptr;
}

LanguageManager::LanguageManager()
    : translator(std::make_unique<Catalogue>())
{
}

LanguageManager::~LanguageManager() = default;

void LanguageManager::loadLanguages()
{
    localeDir = QCoreApplication::applicationDirPath() + QLatin1String("/locale");
    languages.append({QStringLiteral("English"), QStringLiteral("United Kingdom"), QString(),
                      QStringLiteral(":/img/en.png"), QStringLiteral("en_UK")});
    if (!QDir(localeDir).exists())
        return;
    scanCatalogues();
    QCoreApplication::processEvents();
}

void LanguageManager::scanCatalogues()
{
    const QStringList names =
        QDir(localeDir).entryList({QStringLiteral("*.qm")}, QDir::AllEntries, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names) {
        const QString code = codeOf(name);
        // For a code that the locale database does not know, these are the names of its fallback.
        const QLocale locale(code);
        languages.append({QLocale::languageToString(locale.language()), englishCountryName(locale), name,
                          localeDir + QLatin1Char('/') + code + QLatin1String(".png"), code});
        if (AppSettings::instance().value(Language, QVariant()) == QVariant(code))
            selectLanguage(code);
    }
}

void LanguageManager::selectLanguage(const QString &code)
{
    AppSettings &settings = AppSettings::instance();
    settings.setValue(settings.keyName(Language), code);
    QCoreApplication::removeTranslator(translator.get());

    // English without a look at the list. The built-in entry has another code, en_UK; both are meant as they are.
    if (code == QLatin1String("en_EN"))
        return;
    const auto language = findLanguage(code);
    if (!language)
        return;
    // The built-in entry has no file: the folder itself does not load, and the program stays in English.
    if (translator->loadFile(localeDir + QLatin1Char('/') + language->fileName))
        QCoreApplication::installTranslator(translator.get());
}

std::optional<LanguageInfo> LanguageManager::findLanguage(const QString &code) const
{
    const auto found = std::find_if(languages.begin(), languages.end(),
                                    [&code](const LanguageInfo &language) { return language.code == code; });
    return found != languages.end() ? std::optional(*found) : std::nullopt;
}

void LanguageManager::fillLanguageTree(QTreeWidget *tree) const
{
    int longest = 0;
    for (const LanguageInfo &language : languages) {
        auto *item = new QTreeWidgetItem; // the tree owns it
        item->setIcon(0, flagIcon(language.flag));
        item->setText(0, language.code);
        item->setText(1, language.language);
        item->setText(2, language.country);
        tree->addTopLevelItem(item);
        longest = std::max(longest, static_cast<int>(language.language.length()));
    }
    // The column of the codes is as wide as the names of the languages need; that is meant.
    tree->setColumnWidth(0, (longest + 4) * tree->font().pointSize());

    const QString current = AppSettings::instance().value(Language, QVariant()).toString();
    QList<QTreeWidgetItem *> found = tree->findItems(current, Qt::MatchExactly | Qt::MatchCaseSensitive, 0);
    if (found.isEmpty())
        found = tree->findItems(QStringLiteral("English"), Qt::MatchExactly | Qt::MatchCaseSensitive, 1);
    if (!found.isEmpty())
        tree->setCurrentItem(found.first());
}
