#pragma once

#include <QCoroTask>
#include <QObject>
#include <QUrl>

class QNetworkAccessManager;

namespace vl {

class PendingWrites;
class SecretStore;
class SessionCookieJar;

// Keeps the service's cookies (the job seeker's session among them) across restarts, in the
// secure store and never in a plain file. It puts its own jar into the network session. Each
// save is counted in the pending writes, so a process about to end can wait for it.
class CookieVault : public QObject {
    Q_OBJECT
public:
    static constexpr const char* storeKey = "cookies";

    CookieVault(SecretStore& secrets, PendingWrites& pending, QNetworkAccessManager& session,
                QString site, QObject* parent = nullptr);

    // Puts the kept cookies back; what arrived meanwhile stays and wins.
    QCoro::Task<> restore();

private:
    QCoro::Task<> save();

    SecretStore& m_secrets;
    PendingWrites& m_pending;
    SessionCookieJar* m_jar;
    QUrl m_site;
    bool m_restoring = false;
    bool m_saving = false;
    bool m_dirty = false;
};

} // namespace vl
