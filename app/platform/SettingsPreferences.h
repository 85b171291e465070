#pragma once

#include "app/platform/Preferences.h"

#include <QSettings>

namespace vl {

// Preferences in an INI file in the XDG config folder. Each write is synced at once, so nothing
// waits for the process to end.
class SettingsPreferences final : public Preferences {
public:
    SettingsPreferences();
    explicit SettingsPreferences(const QString& path);

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;

private:
    mutable QSettings m_settings;
};

} // namespace vl
