#pragma once

#include "app/platform/PasskeyAuthenticator.h"
#include "app/service/HttpExchange.h"
#include "core/identity/CandidateReplies.h"
#include "core/l10n/Lang.h"

#include <QCoroTask>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>

namespace vl {

class PendingWrites;
class Preferences;

// A passkey operation fails at the service or in the ceremony; the sign-in form tells them apart.
struct PasskeyError {
    std::variant<APIError, PasskeyCanceled, PasskeyFailed> reason;
};

template <class T>
using PasskeyResult = Result<T, PasskeyError>;

// Whether a job seeker is signed in on this computer. The session itself is the service's
// cookie in the shared jar; this object keeps only the address, as the sign of being signed in.
// Its calls use their own reply conventions, so they do not go through APIClient, but they
// share its network session and so its cookie jar.
class CandidateAuth : public QObject {
    Q_OBJECT
public:
    struct Parts {
        Preferences& preferences;
        QNetworkAccessManager& session;
        PasskeyAuthenticator& passkeys;
        PendingWrites& pending;
    };

    CandidateAuth(Parts parts, QString site, QObject* parent = nullptr);

    const std::optional<QString>& email() const { return m_email; }
    bool signedIn() const { return m_email.has_value(); }
    bool adoptedFromEmployer() const { return m_adoptedFromEmployer; }
    bool declined() const { return m_declined; }
    const std::optional<QStringList>& pendingRecovery() const { return m_pendingRecovery; }
    const QString& site() const { return m_site; }
    bool passkeysAvailable() const { return m_passkeys.available(); }
    // Where the browser sign-in starts; it comes back through a velm: link.
    QUrl oauthUrl(Lang lang) const;

    // A velm: link that the browser sign-in came back with, handed over by the desktop; the open
    // sign-in form takes it. False for any other link.
    bool receiveCallback(const QUrl& url);

    void completeSignIn(const QString& email);
    // The service no longer knows the session: the address goes, nothing else changes.
    void sessionLost();
    void markAdopted();
    // Signs out here at once: the address and the adoption mark go, and the choice is
    // remembered so adoption does not bring the identity back. The task that comes back is the
    // network work behind it (push tokens, the service's logout, then the session cookie); it
    // cannot fail, and it is counted in the pending writes until the cookie is gone.
    QCoro::Task<> signOut();
    // The employer side went away; an identity it carried goes with it, at once, and the task
    // is that identity's sign-out.
    QCoro::Task<> employerSignedOut();
    void setPendingRecovery(std::optional<QStringList> codes);

    // Carries the employer's session over to the job seeker side. Without an employer token it
    // fails as "auth"; a failure changes nothing here.
    QCoro::Task<Result<QString>> adopt(std::optional<QString> employerToken);

    QCoro::Task<Result<Sent>> sendCode(QString email, Lang lang);
    // The ticket that the second factor turns into a session.
    QCoro::Task<Result<QString>> verify(QString email, QString code);

    QCoro::Task<Result<FactorState>> factorState(QString ticket);
    QCoro::Task<Result<FactorDone>> continueMailOnly(QString ticket, QString email);
    // The new secret; its otpauth link is otpauthUri(secret).
    QCoro::Task<Result<QString>> totpSetup(QString ticket);
    // The recovery codes issued with the new factor, none when the service sent none.
    QCoro::Task<Result<QStringList>> totpEnroll(QString ticket, QString code, QString email);
    // Six digits or a recovery code, sent as typed.
    QCoro::Task<Result<FactorDone>> totpLogin(QString ticket, QString code, QString email);
    QCoro::Task<PasskeyResult<QStringList>> registerPasskey(QString ticket, QString email);
    QCoro::Task<PasskeyResult<FactorDone>> verifyPasskey(QString ticket, QString email);
    // Skips the address and the ticket; the address signed in comes back.
    QCoro::Task<PasskeyResult<QString>> signInWithPasskey();

Q_SIGNALS:
    void changed();
    void callbackReceived(const QUrl& url);

private:
    template <class T>
    QCoro::Task<Result<T>> postEnvelope(QString path, QByteArray body,
                                        std::optional<QString> bearer);
    template <class T>
    QCoro::Task<Result<T>> postFactor(QString path, QByteArray body);
    QCoro::Task<> finishSignOut(QString pushToken, QString voipToken);
    void deleteSessionCookie();
    QString relyingParty() const;

    Preferences& m_preferences;
    QNetworkAccessManager& m_session;
    PasskeyAuthenticator& m_passkeys;
    PendingWrites& m_pending;
    QString m_site;
    std::optional<QString> m_email;
    std::optional<QStringList> m_pendingRecovery;
    bool m_adoptedFromEmployer = false;
    bool m_declined = false;
};

template <class T>
QCoro::Task<Result<T>> CandidateAuth::postEnvelope(QString path, QByteArray body,
                                                   std::optional<QString> bearer)
{
    QNetworkRequest request(QUrl(m_site + path));
    request.setTransferTimeout(60000);
    request.setRawHeader("x-vl-client", "ios");
    request.setRawHeader("Origin", m_site.toUtf8());
    request.setRawHeader("Content-Type", "application/json");
    if (bearer)
        request.setRawHeader("Authorization", "Bearer " + bearer->toUtf8());
    QNetworkReply* reply = m_session.post(request, body);
    cancelWithOwner(reply, this);
    const HttpExchange got = co_await finish(reply);
    if (!got.answered())
        co_return APIError::network();
    co_return candidateReply::readEnvelope<T>(got.body, got.status);
}

template <class T>
QCoro::Task<Result<T>> CandidateAuth::postFactor(QString path, QByteArray body)
{
    QNetworkRequest request(QUrl(m_site + path));
    request.setTransferTimeout(60000);
    request.setRawHeader("x-vl-client", "ios");
    request.setRawHeader("Content-Type", "application/json");
    QNetworkReply* reply = m_session.post(request, body);
    cancelWithOwner(reply, this);
    const HttpExchange got = co_await finish(reply);
    if (!got.answered())
        co_return APIError::network();
    co_return candidateReply::readFactor<T>(got.body, got.status);
}

} // namespace vl
