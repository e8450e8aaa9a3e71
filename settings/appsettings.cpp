#include "settings/appsettings.h"

AppSettings &AppSettings::instance()
{
    static AppSettings settings;
    return settings;
}

AppSettings::AppSettings()
    : XmlSettings(QString())
{
    m_keyNames[Language] = QStringLiteral("Language");
    m_keyNames[WindowState] = QStringLiteral("Window/State"); // given again below, which is the name that counts; meant
    m_keyNames[WindowOpacity] = QStringLiteral("Window/Opacity");
    m_keyNames[WindowStayOnTop] = QStringLiteral("Window/StayOnTop");
    m_keyNames[WindowRestoreLayout] = QStringLiteral("Window/RestoreLayout");
    m_keyNames[WindowRestoreGeometry] = QStringLiteral("Window/RestoreGeometry");
    m_keyNames[WindowState] = QStringLiteral("Window/WndState");
    m_keyNames[WindowGeometry] = QStringLiteral("Window/WndGeometry");
    m_keyNames[VersionCheckAuto] = QStringLiteral("VersionCheck/Auto");
    m_keyNames[VersionCheckTimeStamp] = QStringLiteral("VersionCheck/TimeStamp");
    m_keyNames[ProfileManual] = QStringLiteral("ProfileManual");
    m_keyNames[ProfileAuto] = QStringLiteral("ProfileAuto");
    m_keyNames[IsFirstStart] = QStringLiteral("IsFirstStart");
    m_keyNames[DisableSplashScreen] = QStringLiteral("DisableSplashScreen");
}
