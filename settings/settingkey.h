#pragma once

#include <QtGlobal>

/// Names a setting. The name it has in the settings file is given in one place, the constructor of AppSettings; the
/// default is passed by whoever reads it. Behind each: the stored text, and the default of every reader.
enum SettingKey : qint32
{
    IsFirstStart = 0,          ///< bool; true
    Language = 1,              ///< locale code such as de_DE; empty
    UnusedKey = 2,             ///< has no name and is not used
    WindowOpacity = 3,         ///< 0 to 1, with two decimals; the integer 1
    WindowStayOnTop = 4,       ///< bool; false
    ProfileManual = 5,         ///< has a name, but nobody reads or writes it
    ProfileAuto = 6,           ///< has a name, but nobody reads or writes it
    WindowState = 7,           ///< tool bars and docks, in lower-case hexadecimal digits; empty
    WindowRestoreLayout = 8,   ///< bool; false
    WindowRestoreGeometry = 9, ///< bool; false
    WindowGeometry = 10,       ///< size and position, in lower-case hexadecimal digits; empty
    DisableSplashScreen = 11,  ///< bool; false
    VersionCheckAuto = 12,     ///< bool; true
    VersionCheckTimeStamp = 13 ///< date of the last check, dd.MM.yyyy; empty
};
