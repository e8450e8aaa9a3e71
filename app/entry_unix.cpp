#include "app/entry.h"

#include <QFile>
#include <QStringList>

#include <clocale>
#include <langinfo.h>

namespace {

// Under cron and the like the locale is the bare "C", in which the toolkit can name only files in ASCII. The file that
// a script names must open there too.
void preferUtf8ToAscii()
{
    std::setlocale(LC_CTYPE, "");
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") != 0)
        return;
    qputenv(qEnvironmentVariableIsEmpty("LC_ALL") ? "LC_CTYPE" : "LC_ALL", "C.UTF-8");
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
