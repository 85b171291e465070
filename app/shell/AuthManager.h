#pragma once

#include "core/session/MePayload.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

class APIClient;
class CandidateAuth;
class InboxState;
class PendingWrites;
class Preferences;
class QuotaStore;
class SecretStore;

// The employer's session: the token in the secure store and the summary of `me`. A token being
// held is what the whole shell means by "hiring".
class AuthManager : public QObject {
    Q_OBJECT
public:
    struct Parts {
        SecretStore& secrets;
        Preferences& preferences;
        const APIClient& api;
        CandidateAuth& candidate;
        InboxState& inbox;
        QuotaStore& quota;
        PendingWrites& pending;
    };

    explicit AuthManager(Parts parts, QObject* parent = nullptr);

    // Reads the token kept from an earlier run; touches no network.
    QCoro::Task<> start();

    const std::optional<QString>& token() const { return m_token; }
    const std::optional<MePayload>& me() const { return m_me; }
    bool hiring() const { return m_token.has_value(); }

    // Loads `me`. Only the service's "auth" answer ends the session; any other failure keeps
    // the session and the last summary.
    QCoro::Task<> refresh();
    QCoro::Task<> signedIn(QString token);
    // Tells the service, whatever it answers, then forgets the session here.
    QCoro::Task<> logOut();
    // The session is gone here when this returns; the task is the store's deletion and the
    // sign-out of an identity carried along with it.
    QCoro::Task<> clearSession();
    // Deletes the employer's account at the service; only then is the session forgotten here.
    QCoro::Task<bool> deleteAccount();
    // Offers the employer's address to the job seeker side, only while an employer token is
    // held, no job seeker is signed in and the job seeker side was not left on purpose.
    QCoro::Task<> adoptSeekerIdentity();

Q_SIGNALS:
    void sessionChanged();
    void meChanged();

private:
    QCoro::Task<> endSession(QString pushToken, QString voipToken);

    Parts m_parts;
    std::optional<QString> m_token;
    std::optional<MePayload> m_me;
};

} // namespace vl
