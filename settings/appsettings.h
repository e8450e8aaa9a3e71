#pragma once

#include "settings/settingkey.h"
#include "settings/xmlsettings.h"

/// Makes AppSettings deletable through a base that knows nothing of XML.
class SettingsBase
{
public:
    virtual ~SettingsBase() = default;
};

/// The program's one settings store: an XmlSettings that knows the names of the program's settings.
class AppSettings final : public SettingsBase, public XmlSettings
{
public:
    /// Made by the first call, which makes the folder "config" in the current directory; destroyed when the process
    /// ends. To be called at each point of use, and not before the data directory is the current one.
    static AppSettings &instance();

private:
    AppSettings();
};
