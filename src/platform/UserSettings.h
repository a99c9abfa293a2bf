#pragma once

#include <QVariant>
#include <memory>

// What this user of this machine has chosen for the desk's windows: colours, the place of the window, widths of
// columns, the last page. Nothing of the station's configuration goes here.
class UserSettings
{
public:
    virtual ~UserSettings() = default;
    // Invalid when nothing was set.
    virtual QVariant value(const QString& key) const = 0;
    virtual void setValue(const QString& key, const QVariant& value) = 0;
};

// The settings file of the user's own, where the platform keeps such files.
std::unique_ptr<UserSettings> OpenUserSettings();

// Reads and writes the settings in use; without any, nothing is remembered.
QVariant UserSetting(const QString& key);
void SetUserSetting(const QString& key, const QVariant& value);
// The program uses the user's file, tests use what they make up. Returns the settings that were in use before.
std::unique_ptr<UserSettings> UseUserSettings(std::unique_ptr<UserSettings> settings);
