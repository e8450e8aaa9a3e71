#include "update/versionreply.h"

#include <QMap>
#include <QStringList>

VersionReply parseVersionReply(const QByteArray &body)
{
    QString text = QString::fromLatin1(body.constData(), static_cast<int>(body.size()));
    text.remove(QLatin1Char('\r'));
    text.remove(QLatin1Char('\n'));

    QMap<QString, QString> values;
    const QStringList pieces = text.simplified().split(QLatin1Char('#'), Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const auto bar = piece.indexOf(QLatin1Char('|'));
        if (bar > 0)
            values.insert(piece.left(bar), piece.mid(bar + 1)); // the key as it stands, blanks included
    }
    return {values.value(QStringLiteral("version")), values.value(QStringLiteral("changes")),
            values.value(QStringLiteral("log")), values.value(QStringLiteral("url"))};
}

std::optional<QUrl> browserAddress(const QString &text)
{
    const QUrl url(text);
    const bool isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return isWeb && url.isValid() && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}
