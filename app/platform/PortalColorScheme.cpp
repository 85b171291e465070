#include "app/platform/PortalColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

namespace vl {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

// The portal's values: 0 no preference, 1 prefers dark, 2 prefers light.
constexpr uint prefersDark = 1;
constexpr uint noPreference = 0;

} // namespace

PortalColorScheme::PortalColorScheme(QObject* parent)
    : ColorSchemeSource(parent)
    , m_platformDark(QGuiApplication::palette().color(QPalette::Window).lightness() < 128)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Asked without blocking: the window is built while the answer travels.
    QDBusMessage read =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    read << group << key;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                const QDBusPendingReply<QVariant> reply = *call;
                if (!reply.isError()) {
                    listen();
                    take(reply.value());
                }
                call->deleteLater();
            });
}

// Changes are followed once the portal has answered. QtDBus finds the slot by its exact text,
// with no spaces; the leading 1 marks a slot, as SLOT() would write it.
void PortalColorScheme::listen()
{
    QDBusConnection::sessionBus().connect(service, path, interface,
                                          QStringLiteral("SettingChanged"), this,
                                          "1settingChanged(QString,QString,QDBusVariant)");
}

bool PortalColorScheme::dark() const
{
    if (m_scheme && *m_scheme != noPreference)
        return *m_scheme == prefersDark;
    return m_platformDark;
}

void PortalColorScheme::settingChanged(const QString& changedGroup, const QString& changedKey,
                                       const QDBusVariant& value)
{
    if (changedGroup == group && changedKey == key)
        take(value.variant());
}

void PortalColorScheme::take(const QVariant& value)
{
    // Read wraps the value in a second variant; the change signal does not.
    QVariant inner = value;
    while (inner.userType() == qMetaTypeId<QDBusVariant>())
        inner = qvariant_cast<QDBusVariant>(inner).variant();
    bool ok = false;
    const uint scheme = inner.toUInt(&ok);
    if (!ok)
        return;
    const bool before = dark();
    m_scheme = scheme;
    if (dark() != before)
        Q_EMIT darkChanged();
}

} // namespace vl
