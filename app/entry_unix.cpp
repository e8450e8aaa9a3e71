#include "app/entry.h"

#include <QFile>
#include <QStringList>

#include <clocale>
#include <langinfo.h>

namespace {

// Under cron and the like the locale is the bare "C", or one that is not installed, in which the toolkit can name only
// files in ASCII. The file that a script names must open there too.
void preferUtf8ToAscii()
{
    std::setlocale(LC_CTYPE, "");
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") != 0)
        return;
    // Of LC_ALL, which would have the last word, the language is kept.
    const QByteArray all = qgetenv("LC_ALL");
    if (!all.isEmpty()) {
        qputenv("LANG", all);
        qunsetenv("LC_ALL");
    }
    qputenv("LC_CTYPE", "C.UTF-8");
}

} // namespace

int main(int argumentCount, char **arguments)
{
    preferUtf8ToAscii();
    std::setlocale(LC_CTYPE, "");

    QStringList words;
    for (int i = 1; i < argumentCount; ++i)
        words << QFile::decodeName(arguments[i]);
    return runProgram(words.join(QLatin1Char(' ')));
}
