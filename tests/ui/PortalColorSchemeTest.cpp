#include "app/platform/PortalColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");

// The desktop's own connection to the session bus, apart from the client's.
QDBusConnection desktopBus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("vl.desktop"));
}

// A settings portal on the session bus that answers as a desktop would.
class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    uint scheme = 0;

    // The desktop changes its preference and says so on the bus.
    void change(uint value)
    {
        scheme = value;
        QDBusMessage signal = QDBusMessage::createSignal(portalPath, portalInterface,
                                                         QStringLiteral("SettingChanged"));
        signal << appearance << colorScheme << QVariant::fromValue(QDBusVariant(value));
        desktopBus().send(signal);
    }

public Q_SLOTS:
    // Read wraps its answer in a second variant, as the portal does.
    QDBusVariant Read(const QString& group, const QString& key)
    {
        if (group != appearance || key != colorScheme)
            return QDBusVariant(QVariant::fromValue(QDBusVariant(QString())));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }
};

class PortalColorSchemeTest : public testing::Test {
protected:
    void SetUp() override
    {
        QDBusConnection bus = desktopBus();
        ASSERT_TRUE(bus.isConnected()) << "the tests run inside a private D-Bus session";
        ASSERT_TRUE(bus.registerObject(portalPath, &portal, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(bus.registerService(portalService));
    }

    void TearDown() override
    {
        QDBusConnection bus = desktopBus();
        bus.unregisterService(portalService);
        bus.unregisterObject(portalPath);
    }

    FakePortal portal;
};

} // namespace

TEST_F(PortalColorSchemeTest, ReadsTheDesktopsPreferenceAndFollowsItsChanges)
{
    portal.scheme = 1;
    PortalColorScheme scheme;
    QSignalSpy changes(&scheme, &ColorSchemeSource::darkChanged);
    ASSERT_TRUE(QTest::qWaitFor([&] { return scheme.dark(); }, 3000));

    portal.change(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !scheme.dark(); }, 3000));
    EXPECT_EQ(changes.count(), 2);

    // No preference: the platform's palette decides, and the offscreen one is light.
    portal.change(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return scheme.dark(); }, 3000));
    portal.change(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !scheme.dark(); }, 3000));

    // Other settings leave the scheme alone.
    QDBusMessage other =
        QDBusMessage::createSignal(portalPath, portalInterface, QStringLiteral("SettingChanged"));
    other << appearance << QStringLiteral("accent-color") << QVariant::fromValue(QDBusVariant(1u));
    desktopBus().send(other);
    QTest::qWait(100);
    EXPECT_FALSE(scheme.dark());
    EXPECT_EQ(changes.count(), 4);
}

TEST(PortalColorSchemeWithoutPortal, FallsBackToThePlatformPalette)
{
    PortalColorScheme scheme;
    QTest::qWait(200);
    EXPECT_FALSE(scheme.dark());
}

#include "PortalColorSchemeTest.moc"
