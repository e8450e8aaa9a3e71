#include "update/versionnumber.h"

#include <QStringList>

std::optional<VersionNumber> parseVersion(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    if (parts.size() != 4)
        return std::nullopt;
    return VersionNumber{parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt(), parts.at(3).toInt()};
}
