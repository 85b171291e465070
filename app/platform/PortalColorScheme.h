#pragma once

#include "app/platform/ColorSchemeSource.h"

#include <QDBusVariant>
#include <optional>

namespace vl {

// The desktop's colour scheme as the freedesktop settings portal tells it, followed live. Where
// there is no portal, or it states no preference, the platform theme's palette decides: it is
// read at construction, so build this before the client sets a palette of its own.
class PortalColorScheme : public ColorSchemeSource {
    Q_OBJECT
public:
    explicit PortalColorScheme(QObject* parent = nullptr);
    bool dark() const override;

private Q_SLOTS:
    // The portal's change signal; QtDBus needs the full QDBusVariant type to deliver it.
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void listen();
    void take(const QVariant& value);

    bool m_platformDark = false;
    std::optional<uint> m_scheme;
};

} // namespace vl
