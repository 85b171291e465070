#include "app/platform/KeychainSecretStore.h"
#include "app/shell/BuildNumber.h"
#include "core/session/UpdateGate.h"
#include "tests/support/TestContext.h"

#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <gtest/gtest.h>
#include <limits>

using namespace vl;
using namespace vl::test;

namespace {

// Nothing listens here: every call fails as `network`.
const QString deadSite = QStringLiteral("http://127.0.0.1:9");

std::unique_ptr<AppContext> contextWith(const QStringList& languages,
                                        const std::optional<QString>& storedLang = {})
{
    // The stored language must be in place before AppState is built.
    PlatformBindings platform;
    auto preferences = std::make_unique<MemoryPreferences>();
    if (storedLang)
        preferences->setValue(QStringLiteral("vl.lang"), *storedLang);
    platform.secrets = std::make_unique<MemorySecretStore>(*preferences);
    platform.preferences = std::move(preferences);
    platform.session = std::make_unique<QNetworkAccessManager>();
    platform.preferredLanguages = languages;
    platform.site = deadSite;
    return std::make_unique<AppContext>(std::move(platform));
}

} // namespace

TEST(Language, ChosenOnceFromTheStoredValueOrTheSystem)
{
    struct Case {
        QStringList system;
        std::optional<QString> stored;
        Lang expected;
    };
    const Case cases[] = {
        {{QStringLiteral("de-DE")}, std::nullopt, Lang::ka},
        {{QStringLiteral("en-GB"), QStringLiteral("ru-RU")}, std::nullopt, Lang::en},
        {{QStringLiteral("ru")}, std::nullopt, Lang::ru},
        {{}, std::nullopt, Lang::ka},
        {{QStringLiteral("ru-RU")}, QStringLiteral("en"), Lang::en},
        {{QStringLiteral("ru-RU")}, QStringLiteral("fr"), Lang::ru}, // unknown: the system decides
        {{QStringLiteral("en-US")}, QStringLiteral("KA"), Lang::en},
    };
    for (const Case& c : cases) {
        auto context = contextWith(c.system, c.stored);
        EXPECT_EQ(context->appState.lang(), c.expected)
            << c.system.join(QLatin1Char(',')).toStdString();
        EXPECT_EQ(context->preferences().string(QStringLiteral("vl.lang")), rawValue(c.expected));
    }

    auto context = contextWith({QStringLiteral("en-US")});
    QList<Lang> heard;
    QObject::connect(&context->appState, &AppState::langChanged, [&](Lang lang) { heard << lang; });
    context->appState.setLang(Lang::ru);
    context->appState.setLang(Lang::ru);
    EXPECT_EQ(heard, QList<Lang>{Lang::ru});
    EXPECT_EQ(context->preferences().string(QStringLiteral("vl.lang")), QStringLiteral("ru"));
}

TEST(VersionGate, BuildNumbersAndGates)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    EXPECT_EQ(parseBuildNumber(QStringLiteral("42")), 42);
    EXPECT_EQ(parseBuildNumber(QStringLiteral("+42")), 42);
    EXPECT_EQ(parseBuildNumber(QStringLiteral("-3")), -3);
    EXPECT_EQ(parseBuildNumber(QStringLiteral("abc")), largest);
    EXPECT_EQ(parseBuildNumber(QString()), largest);
    EXPECT_EQ(parseBuildNumber(QStringLiteral(" 42")), largest);

    ConfigPayload config;
    config.minBuild = 50;
    EXPECT_FALSE(updateRequired(config, largest, QStringLiteral("https://site")));
    EXPECT_FALSE(updateRequired(config, 50, QStringLiteral("https://site")));
    EXPECT_EQ(updateRequired(config, 49, QStringLiteral("https://site")),
              (UpdateRequired{QStringLiteral("https://site"), QStringLiteral("https://site")}));
    config.storeUrl = QStringLiteral("https://store");
    config.updateUrl = QString(); // empty counts as absent
    config.testflightUrl = QStringLiteral("https://beta");
    EXPECT_EQ(updateRequired(config, 1, QStringLiteral("https://site")),
              (UpdateRequired{QStringLiteral("https://store"), QStringLiteral("https://beta")}));
    config.updateUrl = QStringLiteral("https://update");
    EXPECT_EQ(updateRequired(config, 1, QStringLiteral("https://site"))->storeUrl,
              QStringLiteral("https://update"));
    config.minBuild = 0;
    EXPECT_FALSE(updateRequired(config, -5, QStringLiteral("https://site")));

    ConfigPayload latest;
    latest.latestBuild = 60;
    EXPECT_FALSE(updateAvailable(latest, 10)); // nowhere to get it
    latest.storeUrl = QStringLiteral("https://store");
    EXPECT_EQ(updateAvailable(latest, 10), (UpdateAvailable{60, QStringLiteral("https://store")}));
    latest.updateUrl = QStringLiteral("https://update");
    EXPECT_EQ(updateAvailable(latest, 10)->url, QStringLiteral("https://update"));
    EXPECT_FALSE(updateAvailable(latest, 60));
}

TEST(VersionGate, BuildsBeyondThirtyTwoBitsAndEmptyAddresses)
{
    const auto config = json::decode<ConfigPayload>(
        R"({"rev":1,"minBuild":5000000000,"latestBuild":5000000002,"locales":[],)"
        R"("categories":[],"cities":[],"employmentTypes":[],"storeUrl":"https://store",)"
        R"("updateUrl":"","testflightUrl":""})");
    ASSERT_TRUE(config);
    EXPECT_EQ(config->minBuild, 5'000'000'000);
    // Read as 32 bits, 5000000000 would be a small number, and this build would pass the gate.
    EXPECT_EQ(updateRequired(*config, 4'999'999'999, QStringLiteral("https://site")),
              (UpdateRequired{QStringLiteral("https://store"), QStringLiteral("https://store")}));
    EXPECT_FALSE(updateRequired(*config, 5'000'000'000, QStringLiteral("https://site")));
    EXPECT_EQ(updateAvailable(*config, 5'000'000'001),
              (UpdateAvailable{5'000'000'002, QStringLiteral("https://store")}));

    ConfigPayload nowhere;
    nowhere.latestBuild = 60;
    nowhere.updateUrl = QString();
    nowhere.storeUrl = QString();
    EXPECT_FALSE(updateAvailable(nowhere, 10));
}

TEST(SecretStore, SoftValuesFallBackToPreferencesOnlyWhenTheStoreLosesThem)
{
    MemoryPreferences preferences;
    MemorySecretStore store(preferences);
    wait(store.softSet(QStringLiteral("v1"), QStringLiteral("support-key")));
    EXPECT_FALSE(preferences.contains(QStringLiteral("vl.soft.support-key")));
    EXPECT_EQ(wait(store.softGet(QStringLiteral("support-key"))), QStringLiteral("v1"));

    store.mode = MemorySecretStore::Mode::refusesWrites;
    wait(store.softSet(QStringLiteral("v2"), QStringLiteral("other")));
    EXPECT_EQ(preferences.string(QStringLiteral("vl.soft.other")), QStringLiteral("v2"));
    EXPECT_EQ(wait(store.softGet(QStringLiteral("other"))), QStringLiteral("v2"));
    EXPECT_EQ(wait(store.softGet(QStringLiteral("missing"))), std::nullopt);
}

TEST(Session, ClearingForgetsTheEmployerAndOnlyAnAdoptedJobSeeker)
{
    auto context = contextWith({QStringLiteral("en")});
    MemorySecretStore& secrets = secretsOf(*context);
    secrets.items.insert(QStringLiteral("session"), QStringLiteral("tok"));
    wait(context->start());
    ASSERT_EQ(context->auth.token(), QStringLiteral("tok"));

    // A job seeker who signed in on their own stays.
    context->candidate.completeSignIn(QStringLiteral("nino@example.ge"));
    context->inbox.setUnread(4);
    wait(context->auth.clearSession());
    EXPECT_FALSE(context->auth.token());
    EXPECT_FALSE(secrets.items.contains(QStringLiteral("session")));
    EXPECT_EQ(secrets.calls.last(), QStringLiteral("delete session"));
    EXPECT_EQ(context->candidate.email(), QStringLiteral("nino@example.ge"));
    EXPECT_EQ(context->inbox.unread(), 4);

    // One carried over from the employer goes with it, without counting as a decline.
    QNetworkCookieJar& jar = *context->session().cookieJar();
    QNetworkCookie cookie("vl_cand", "s1");
    QNetworkCookie other("theme", "dark");
    jar.setCookiesFromUrl({cookie, other}, QUrl(deadSite));
    context->candidate.markAdopted();
    auto cleared = context->auth.clearSession();
    EXPECT_FALSE(context->candidate.email());
    EXPECT_FALSE(context->candidate.declined());
    EXPECT_FALSE(context->candidate.adoptedFromEmployer());
    EXPECT_EQ(context->inbox.unread(), 0);
    // The cookie goes after the service's logout, which cannot be reached here, and the
    // clearing ends only once it is gone.
    wait(std::move(cleared));
    const auto left = jar.cookiesForUrl(QUrl(deadSite));
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left.first().name(), QByteArray("theme"));
}

TEST(Session, ANetworkFailureNeverSignsAnybodyOut)
{
    auto context = contextWith({QStringLiteral("en")});
    secretsOf(*context).items.insert(QStringLiteral("session"), QStringLiteral("tok"));
    wait(context->start());
    wait(context->auth.refresh());
    EXPECT_EQ(context->auth.token(), QStringLiteral("tok"));
    wait(context->boot());
    EXPECT_EQ(context->auth.token(), QStringLiteral("tok"));
    EXPECT_TRUE(context->taxonomy.categories().empty());

    // Signing out wins over a service that cannot be reached.
    wait(context->auth.logOut());
    EXPECT_FALSE(context->auth.token());
}

TEST(Session, AdoptionIsOfferedOnlyToAFreshJobSeekerSide)
{
    auto context = contextWith({QStringLiteral("en")});
    wait(context->auth.adoptSeekerIdentity()); // no employer: nothing to offer, nothing asked
    EXPECT_FALSE(context->candidate.email());
    const auto refused = wait(context->candidate.adopt(std::nullopt));
    EXPECT_EQ(refused.error(), APIError::server(QStringLiteral("auth")));
}

TEST(SecretStore, WithoutASecretServiceEveryCallFailsSilentlyAndTheSessionLastsTheRun)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/velmora-test-bus");
    MemoryPreferences preferences;
    KeychainSecretStore store(preferences);
    wait(store.set(QStringLiteral("tok"), QStringLiteral("session")));
    EXPECT_EQ(wait(store.get(QStringLiteral("session"))), std::nullopt);
    wait(store.softSet(QStringLiteral("kept"), QStringLiteral("support-key")));
    EXPECT_EQ(wait(store.softGet(QStringLiteral("support-key"))), QStringLiteral("kept"));

    PlatformBindings platform;
    platform.preferences = std::make_unique<MemoryPreferences>();
    platform.secrets = std::make_unique<KeychainSecretStore>(*platform.preferences);
    platform.session = std::make_unique<QNetworkAccessManager>();
    platform.site = deadSite;
    AppContext context(std::move(platform));
    wait(context.auth.signedIn(QStringLiteral("tok")));
    EXPECT_EQ(context.auth.token(), QStringLiteral("tok"));
}
