#include "app/verification.h"

#include <QStringList>

namespace {

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

} // namespace

std::optional<Verification> parseVerification(const QString &text)
{
    const QStringList pieces = text.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (pieces.size() < 2)
        return std::nullopt;

    const auto algorithmValue = valueOf(pieces.at(0), QLatin1Char('a'));
    const auto algorithm = algorithmValue ? algorithmNamed(withoutBlanks(*algorithmValue)) : std::nullopt;
    const auto checksumValue = valueOf(pieces.at(1), QLatin1Char('c'));
    // With two pieces only, the file piece is an empty text, which is no file switch.
    const auto fileValue = valueOf(pieces.value(2), QLatin1Char('f'));
    if (!algorithm || !checksumValue || !fileValue)
        return std::nullopt;
    return Verification{*algorithm, withoutBlanks(*checksumValue), withoutLeadingBlanks(*fileValue)};
}
