#include "app/platform/SettingsPreferences.h"

namespace vl {

SettingsPreferences::SettingsPreferences()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("velmora"),
                 QStringLiteral("velmora"))
{
}

SettingsPreferences::SettingsPreferences(const QString& path)
    : m_settings(path, QSettings::IniFormat)
{
}

QVariant SettingsPreferences::value(const QString& key) const
{
    return m_settings.value(key);
}

void SettingsPreferences::setValue(const QString& key, const QVariant& value)
{
    m_settings.setValue(key, value);
    m_settings.sync();
}

void SettingsPreferences::remove(const QString& key)
{
    m_settings.remove(key);
    m_settings.sync();
}

} // namespace vl
