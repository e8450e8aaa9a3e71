#include "settings/appsettings.h"

AppSettings &AppSettings::instance()
{
    static AppSettings settings;
    return settings;
}

AppSettings::AppSettings()
    : XmlSettings(QString())
{
    keyNames[Language] = QStringLiteral("Language");
    keyNames[WindowState] = QStringLiteral("Window/State"); // given again below, which is the name that counts; meant
    keyNames[WindowOpacity] = QStringLiteral("Window/Opacity");
    keyNames[WindowStayOnTop] = QStringLiteral("Window/StayOnTop");
    keyNames[WindowRestoreLayout] = QStringLiteral("Window/RestoreLayout");
    keyNames[WindowRestoreGeometry] = QStringLiteral("Window/RestoreGeometry");
    keyNames[WindowState] = QStringLiteral("Window/WndState");
    keyNames[WindowGeometry] = QStringLiteral("Window/WndGeometry");
    keyNames[VersionCheckAuto] = QStringLiteral("VersionCheck/Auto");
    keyNames[VersionCheckTimeStamp] = QStringLiteral("VersionCheck/TimeStamp");
    keyNames[ProfileManual] = QStringLiteral("ProfileManual");
    keyNames[ProfileAuto] = QStringLiteral("ProfileAuto");
    keyNames[IsFirstStart] = QStringLiteral("IsFirstStart");
    keyNames[DisableSplashScreen] = QStringLiteral("DisableSplashScreen");
}
