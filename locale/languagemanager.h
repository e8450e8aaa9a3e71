#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class Catalogue;
class QTreeWidget;

/// One language that the program can speak.
struct LanguageInfo
{
    QString language; ///< its English name
    QString country;  ///< the English name of its country
    QString fileName; ///< of its catalogue, without folder; empty for the built-in English
    QString flag;     ///< path of the picture shown beside the code
    QString code;     ///< such as de_DE; what the setting Language holds
};

/// Knows the catalogues in the folder "locale" beside the executable and installs the one translation of the program.
///
/// Changing the language makes the toolkit send a language-change event to every widget. What cannot be loaded leaves
/// the program in English; nothing is reported. Needs an application object.
class LanguageManager
{
public:
    /// Made by the first call.
    static LanguageManager &instance();
    /// Deletes the instance (making it first if there is none), and with it any translation. The next call of
    /// instance() makes a new one.
    static void destroyInstance();

    ~LanguageManager();

    /// Fills the list: built-in English, then one entry per catalogue, by file name ignoring case. Activates the
    /// language of the setting Language if there is a catalogue for it. Called once, after the settings are loaded.
    void loadLanguages();

    /// Stores the code in the setting Language and shows the program in that language; a code without a catalogue is
    /// English.
    void selectLanguage(const QString &code);

    /// The first language of exactly this code.
    std::optional<LanguageInfo> findLanguage(const QString &code) const;

    /// Fills a tree of three columns (code with flag, language, country) and makes the current language its current
    /// item.
    void fillLanguageTree(QTreeWidget *tree) const;

private:
    LanguageManager();
    Q_DISABLE_COPY(LanguageManager)

    void scanCatalogues();

    static LanguageManager *s_instance;

    QList<LanguageInfo> languages;
    std::unique_ptr<Catalogue> translator;
    QString localeDir;
};
