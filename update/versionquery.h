#pragma once

#include <QDate>
#include <QString>

/// What the update server is told.
struct VersionQuery
{
    QString host;      ///< with ":" and a port if it is not 80
    QString version;   ///< of the running program, as it stands
    bool isFirstStart; ///< whether this is the program's first run
    QString locale;    ///< the system's, such as de_DE; not the language chosen in the program
    bool beta;         ///< whether versions for testers count

    /// The address to ask. The values stand in it as they are.
    QString address() const;
};

/// The form of the date in the setting VersionCheck/TimeStamp.
QString timeStampOf(const QDate &date);

/// Whether a time stamp is that of this day. Another day, past or future, and a text that is no date are not.
bool isTimeStampOf(const QString &timeStamp, const QDate &today);
