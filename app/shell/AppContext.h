#pragma once

#include "app/calls/CallCenter.h"
#include "app/conversations/InboxState.h"
#include "app/discovery/SavedJobs.h"
#include "app/hiring/QuotaStore.h"
#include "app/identity/CandidateAuth.h"
#include "app/identity/CandidateStore.h"
#include "app/identity/SeekerStore.h"
#include "app/platform/PasskeyAuthenticator.h"
#include "app/platform/PendingWrites.h"
#include "app/platform/Preferences.h"
#include "app/platform/Scheduler.h"
#include "app/platform/SecretStore.h"
#include "app/service/APIClient.h"
#include "app/service/CookieVault.h"
#include "app/shell/AppState.h"
#include "app/shell/AuthManager.h"
#include "app/shell/MacNav.h"
#include "app/shell/ReviewAsk.h"
#include "app/shell/Router.h"
#include "app/shell/Taxonomy.h"

#include <QNetworkAccessManager>
#include <QStringList>
#include <memory>

namespace vl {

// What the desktop gives the client. `velmora` and `velmora-cli` pass the Linux bindings; tests
// pass fakes where the machine cannot have the real thing.
struct PlatformBindings {
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<SecretStore> secrets;
    std::unique_ptr<QNetworkAccessManager> session;
    std::unique_ptr<Scheduler> scheduler;
    // None given: this computer has no passkey authenticator.
    std::unique_ptr<PasskeyAuthenticator> passkeys;
    QStringList preferredLanguages;
    QString site;
    qint64 build = 0;
};

// The composition root: the platform bindings and the shared objects, built once in dependency
// order and handed down to whoever needs them. Nothing here is reachable from anywhere else.
class AppContext {
    // Declared first: everything below is built from them.
    PlatformBindings m_platform;
    APIClient m_api;

public:
    explicit AppContext(PlatformBindings platform);
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    // The Linux bindings: settings in the XDG config folder, the Secret Service, the shared
    // network session with its disk cache, the system's languages, VELMORA_SITE or the build's
    // own origin.
    static PlatformBindings linuxBindings();

    // Reads what the secure store kept from an earlier run (the service's cookies, the
    // employer's token). Nothing else reads it before.
    QCoro::Task<> start();
    // The boot: the taxonomy first, then the employer's summary and adoption when a token is
    // held.
    QCoro::Task<> boot();
    // Waits for the writes still under way, at most `bound`; for a process about to end.
    QCoro::Task<> settle(std::chrono::milliseconds bound = std::chrono::seconds(5));

    Preferences& preferences() { return *m_platform.preferences; }
    SecretStore& secrets() { return *m_platform.secrets; }
    QNetworkAccessManager& session() { return *m_platform.session; }
    Scheduler& scheduler() { return *m_platform.scheduler; }
    const APIClient& api() const { return m_api; }
    const QString& site() const { return m_platform.site; }

    // First of the shared objects: every one below may count its writes here.
    PendingWrites pending;
    AppState appState;
    CookieVault cookies;
    CandidateAuth candidate;
    CandidateStore candidateStore;
    SeekerStore seekerStore;
    InboxState inbox;
    QuotaStore quota;
    CallCenter calls;
    AuthManager auth;
    Taxonomy taxonomy;
    ReviewAsk review;
    Router router;
    MacNav nav;
    SavedJobs saved;
};

} // namespace vl
