#pragma once

#include <QCoroTask>
#include <QObject>
#include <QUrl>

class QNetworkAccessManager;

namespace vl {

class SecretStore;
class SessionCookieJar;

// Keeps the service's cookies (the job seeker's session among them) across restarts, in the
// secure store and never in a plain file. It puts its own jar into the network session.
class CookieVault : public QObject {
    Q_OBJECT
public:
    static constexpr const char* storeKey = "cookies";

    CookieVault(SecretStore& secrets, QNetworkAccessManager& session, QString site,
                QObject* parent = nullptr);

    // Puts the kept cookies back; what arrived meanwhile stays and wins.
    QCoro::Task<> restore();
    // Ends when the latest content of the jar is in the store, for a process about to quit.
    QCoro::Task<> settle();

Q_SIGNALS:
    void settled();

private:
    QCoro::Task<> save();

    SecretStore& m_secrets;
    SessionCookieJar* m_jar;
    QUrl m_site;
    bool m_restoring = false;
    bool m_saving = false;
    bool m_dirty = false;
};

} // namespace vl
