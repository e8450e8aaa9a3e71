#pragma once

#include <QByteArray>
#include <QDomElement>
#include <QLatin1String>
#include <QString>

/// The tag of a settings file's root element.
inline constexpr QLatin1String settingsTag("Settings", 8);

/// The bytes of a settings file. Nothing for what is no file (missing, a folder, a pipe), cannot be read, or is larger
/// than 1 MiB, many hundred times what the program writes.
QByteArray settingsFileContent(const QString &fileName);

/// The root element Settings of a settings file, or a null element.
///
/// The bytes are UTF-8, or UTF-16 with a byte order mark. Text that breaks off is used as far as it goes. Text that
/// would cost the XML reader its stack, its memory or the user's time is refused as a whole: more than 64 levels,
/// hundreds of attributes in a tag, or entities of its own.
QDomElement readSettings(const QByteArray &bytes);
