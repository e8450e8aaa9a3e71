#include "app/commandline.h"

#include "app/notice.h"
#include "checksum/filechecksum.h"
#include "update/foreigntext.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTextDocumentFragment>

#include <optional>

namespace {

constexpr qint32 valid = 0;
constexpr qint32 invalid = 1;
constexpr qint32 error = -1;

// How much of what was typed is shown. A box grows with its text, out of every screen.
constexpr int longestInBox = 1000;

const QLatin1String title("Command Line Interface");

// The bold tag is closed without having been opened; that is meant.
const QLatin1String usageText("<p>Error in arguments</b>: '%1'</p>"
                              "<b>Usage:</b><br/>"
                              "<em>start /wait orv.exe /a ALGORITHM /c CHECKSUM /f FILE</em><br/>"
                              "Error Level: Valid=0 | Invalid=1 | Error=-1");

// The value of a switch such as "a md5 ", or nothing when the piece belongs to another switch. Either case will do for
// the letter.
std::optional<QString> valueOf(const QString &piece, QChar letter)
{
    if (piece.isEmpty() || piece.at(0).toLower() != letter)
        return std::nullopt;
    return piece.mid(1);
}

// Only the character " " counts as a blank; tabs and the like stay.
QString withoutBlanks(QString text)
{
    return text.remove(QLatin1Char(' '));
}

QString withoutLeadingBlanks(const QString &text)
{
    int first = 0;
    while (first < text.size() && text.at(first) == QLatin1Char(' '))
        ++first;
    return text.mid(first);
}

// In lower case only; "MD5" is a usage error.
std::optional<ChecksumAlgorithm> algorithmNamed(const QString &name)
{
    if (name == QLatin1String("md5"))
        return md5Algorithm;
    if (name == QLatin1String("sha1"))
        return sha1Algorithm;
    return std::nullopt;
}

qint32 showFileNotFound(const QString &file)
{
    const QString text = QStringLiteral("File '%1' not found.");
    show({QMessageBox::Warning, title, text.arg(shortened(file, longestInBox)), Qt::PlainText, text.arg(file)});
    return error;
}

} // namespace

qint32 runCommandLine(const QString &text)
{
    const QStringList pieces = text.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (pieces.size() < 2)
        return showUsageError(text);

    const auto algorithmValue = valueOf(pieces.at(0), QLatin1Char('a'));
    const auto algorithm = algorithmValue ? algorithmNamed(withoutBlanks(*algorithmValue)) : std::nullopt;
    if (!algorithm)
        return showUsageError(text);

    const auto checksumValue = valueOf(pieces.at(1), QLatin1Char('c'));
    if (!checksumValue)
        return showUsageError(text);

    // With two pieces only, the file piece is an empty text, which is no file switch.
    const auto fileValue = valueOf(pieces.value(2), QLatin1Char('f'));
    if (!fileValue)
        return showUsageError(text);

    // Quotes are taken off for the question whether the file exists, and only for it: the checksum is computed of the
    // name as it stands, so a quoted name is an error without a box. This is meant.
    const QString file = withoutLeadingBlanks(*fileValue);
    if (!QFile::exists(QString(file).remove(QLatin1Char('"'))))
        return showFileNotFound(file);

    QString computed;
    try {
        computed = fileChecksum(*algorithm, file);
    } catch (...) {
        return error;
    }
    return computed == withoutBlanks(*checksumValue) ? valid : invalid;
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
