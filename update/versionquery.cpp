#include "update/versionquery.h"

namespace {

const QString dateFormat = QStringLiteral("dd.MM.yyyy");

} // namespace

QString VersionQuery::address() const
{
    // Put together piece by piece, since a "%1" inside a value is a value.
    return QLatin1String("http://") + host + QLatin1String("/latest.php?id=orvanta") + QLatin1String("&version=") +
           version + QLatin1String("&fresh=") + QString::number(isFirstStart ? 1 : 0) + QLatin1String("&lang=") +
           locale + QLatin1String("&beta=") + QString::number(beta ? 1 : 0) + QLatin1String("&arch=64");
}

QString timeStampOf(const QDate &date)
{
    return date.toString(dateFormat);
}

bool isTimeStampOf(const QString &timeStamp, const QDate &today)
{
    const QDate date = QDate::fromString(timeStamp, dateFormat);
    return date.isValid() && date.daysTo(today) == 0;
}
