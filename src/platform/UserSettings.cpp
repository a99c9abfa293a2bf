#include "platform/UserSettings.h"

#include <QSettings>
#include <utility>

namespace {

class SettingsFile final : public UserSettings
{
public:
    QVariant value(const QString& key) const override { return m_file.value(key); }
    void setValue(const QString& key, const QVariant& value) override { m_file.setValue(key, value); }

private:
    QSettings m_file{QSettings::IniFormat, QSettings::UserScope, QStringLiteral("RiggingDesk"),
                     QStringLiteral("RiggingDesk")};
};

std::unique_ptr<UserSettings>& InUse()
{
    static std::unique_ptr<UserSettings> settings;
    return settings;
}

} // namespace

std::unique_ptr<UserSettings> OpenUserSettings()
{
    return std::make_unique<SettingsFile>();
}

QVariant UserSetting(const QString& key)
{
    return InUse() ? InUse()->value(key) : QVariant();
}

void SetUserSetting(const QString& key, const QVariant& value)
{
    if (InUse())
        InUse()->setValue(key, value);
}

std::unique_ptr<UserSettings> UseUserSettings(std::unique_ptr<UserSettings> settings)
{
    return std::exchange(InUse(), std::move(settings));
}
