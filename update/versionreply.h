#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// What the update server says of the newest version. Every text is a stranger's: the reply comes unprotected.
struct VersionReply
{
    QString version; ///< four numbers joined by "."
    QString changes; ///< a short description; may hold HTML
    QString log;     ///< address of the change log
    QString url;     ///< address of the download page
};

/// Reads the body of a reply: pieces separated by "#", each a key, "|" and a value, in Latin-1. Line breaks are dropped
/// and white space is simplified first. Pieces without a key are skipped; of two with one key the later counts; other
/// keys are ignored. What is not there is empty.
VersionReply parseVersionReply(const QByteArray &body);

/// The address if it can be handed to a browser: http or https, with a host. Nothing otherwise.
std::optional<QUrl> browserAddress(const QString &text);
