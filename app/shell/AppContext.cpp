#include "app/shell/AppContext.h"

#include "app/platform/KeychainSecretStore.h"
#include "app/platform/SettingsPreferences.h"
#include "app/platform/TimerScheduler.h"
#include "app/service/NetworkSession.h"
#include "app/shell/BuildNumber.h"

#include <QLocale>

namespace vl {

namespace {

PlatformBindings completed(PlatformBindings platform)
{
    if (!platform.passkeys)
        platform.passkeys = std::make_unique<NoPasskeyAuthenticator>();
    return platform;
}

} // namespace

AppContext::AppContext(PlatformBindings platform)
    : m_platform(completed(std::move(platform)))
    , m_api(m_platform.session.get(), m_platform.site, [this] { return auth.token(); })
    , appState(*m_platform.preferences, m_platform.preferredLanguages)
    , cookies(*m_platform.secrets, pending, *m_platform.session, m_api.site())
    , candidate({*m_platform.preferences, *m_platform.session, *m_platform.passkeys, pending},
                m_api.site())
    , candidateStore(*m_platform.secrets, pending)
    , seekerStore(*m_platform.secrets, pending)
    , auth({*m_platform.secrets, *m_platform.preferences, m_api, candidate, inbox, quota, pending})
    , taxonomy(m_api, m_platform.build)
    , review(*m_platform.preferences)
    , router(m_api.site())
    , nav(router)
    , saved(*m_platform.preferences)
{
    // The employer's sign-out, whichever way it comes, is the one change that leaves no token.
    QObject::connect(&auth, &AuthManager::sessionChanged, &auth, [this] {
        if (!auth.token())
            forgetCachedAnswers(session());
    });
}

PlatformBindings AppContext::linuxBindings()
{
    PlatformBindings platform;
    platform.preferences = std::make_unique<SettingsPreferences>();
    platform.secrets = std::make_unique<KeychainSecretStore>(*platform.preferences);
    platform.session = makeNetworkSession();
    platform.scheduler = std::make_unique<TimerScheduler>();
    platform.preferredLanguages = QLocale::system().uiLanguages();
    const QString fromEnvironment = qEnvironmentVariable("VELMORA_SITE");
    platform.site =
        fromEnvironment.isEmpty() ? QStringLiteral(VELMORA_DEFAULT_SITE) : fromEnvironment;
    platform.build = runningBuildNumber();
    return platform;
}

QCoro::Task<> AppContext::start()
{
    co_await cookies.restore();
    co_await auth.start();
}

QCoro::Task<> AppContext::boot()
{
    co_await taxonomy.load();
    if (!auth.token())
        co_return;
    co_await auth.refresh();
    if (auth.me())
        co_await auth.adoptSeekerIdentity();
}

QCoro::Task<> AppContext::settle(std::chrono::milliseconds bound)
{
    co_await pending.settle(bound);
}

} // namespace vl
