#include "tests/support/TestContext.h"

#include "app/platform/KeychainSecretStore.h"
#include "app/platform/TimerScheduler.h"
#include "app/service/NetworkSession.h"

namespace vl::test {

std::unique_ptr<AppContext> makeContext(const TestContextOptions& options)
{
    PlatformBindings platform;
    platform.preferences = std::make_unique<MemoryPreferences>();
    if (options.realSecretService)
        platform.secrets = std::make_unique<KeychainSecretStore>(*platform.preferences);
    else
        platform.secrets = std::make_unique<MemorySecretStore>(*platform.preferences);
    platform.session = makeNetworkSession();
    if (options.manualTime)
        platform.scheduler = std::make_unique<ManualScheduler>();
    else
        platform.scheduler = std::make_unique<TimerScheduler>();
    platform.preferredLanguages = options.preferredLanguages;
    platform.site = options.site;
    platform.build = options.build;
    return std::make_unique<AppContext>(std::move(platform));
}

MemoryPreferences& preferencesOf(AppContext& context)
{
    return static_cast<MemoryPreferences&>(context.preferences());
}

ManualScheduler& manualSchedulerOf(AppContext& context)
{
    return static_cast<ManualScheduler&>(context.scheduler());
}

MemorySecretStore& secretsOf(AppContext& context)
{
    return static_cast<MemorySecretStore&>(context.secrets());
}

} // namespace vl::test
