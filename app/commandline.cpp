#include "app/commandline.h"

#include "app/notice.h"
#include "app/verification.h"
#include "checksum/filechecksum.h"
#include "update/foreigntext.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextDocumentFragment>

namespace {

constexpr qint32 valid = 0;
constexpr qint32 invalid = 1;
constexpr qint32 error = -1;

// How much of what was typed is shown: all that a command line can be on Windows. Elsewhere it can be megabytes, which
// nobody reads and which take their time to be laid out.
constexpr int longestInBox = 32767;

const QLatin1String title("Command Line Interface");

// The bold tag is closed without having been opened; that is meant.
const QLatin1String usageText("<p>Error in arguments</b>: '%1'</p>"
                              "<b>Usage:</b><br/>"
                              "<em>start /wait orv.exe /a ALGORITHM /c CHECKSUM /f FILE</em><br/>"
                              "Error Level: Valid=0 | Invalid=1 | Error=-1");

qint32 showFileNotFound(const QString &file)
{
    const QString text = QStringLiteral("File '%1' not found.");
    show({QMessageBox::Warning, title, text.arg(shortened(file, longestInBox)), Qt::PlainText, text.arg(file)});
    return error;
}

} // namespace

qint32 runCommandLine(const QString &text)
{
    const auto verification = parseVerification(text);
    if (!verification)
        return showUsageError(text);

    // Quotes are taken off for the question whether the file exists, and only for it: the checksum is computed of the
    // name as it stands, so a quoted name is an error without a box. This is meant.
    const QString &file = verification->file;
    if (!QFile::exists(QString(file).remove(QLatin1Char('"'))))
        return showFileNotFound(file);

    QString computed;
    try {
        computed = fileChecksum(verification->algorithm, file);
    } catch (...) {
        return error;
    }
    return computed == verification->expected ? valid : invalid;
}

qint32 showUsageError(const QString &commandLine)
{
    const QString usage = usageText;
    // Turned into plain text before the command line goes in, so that nothing typed is taken for markup.
    const QString plainUsage = QTextDocumentFragment::fromHtml(usage).toPlainText();
    const QString boxText = harmlessHtml(usage.arg(shortened(commandLine, longestInBox)));
    show({QMessageBox::Information, title, boxText, Qt::AutoText, plainUsage.arg(commandLine)});
    static_cast<void>(QCoreApplication::closingDown()); // the answer plays no part; the query is kept
    return error;
}
