#pragma once

#include "app/service/HttpExchange.h"
#include "core/identity/CandidateReplies.h"

#include <QCoroTask>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <optional>

namespace vl {

class Preferences;

// Whether a job seeker is signed in on this computer. The session itself is the service's
// cookie in the shared jar; this object keeps only the address, as the sign of being signed in.
// Its calls use their own reply conventions, so they do not go through APIClient, but they
// share its network session and so its cookie jar.
class CandidateAuth : public QObject {
    Q_OBJECT
public:
    CandidateAuth(Preferences& preferences, QNetworkAccessManager& session, QString site,
                  QObject* parent = nullptr);

    const std::optional<QString>& email() const { return m_email; }
    bool signedIn() const { return m_email.has_value(); }
    bool adoptedFromEmployer() const { return m_adoptedFromEmployer; }
    bool declined() const { return m_declined; }
    const std::optional<QStringList>& pendingRecovery() const { return m_pendingRecovery; }
    const QString& site() const { return m_site; }

    void completeSignIn(const QString& email);
    void markAdopted();
    // Signs out here at once: the address, the adoption mark and the session cookie go, and the
    // choice is remembered so adoption does not bring the identity back.
    void signOut();
    // The employer side went away; an identity it carried goes with it.
    void employerSignedOut();
    void setPendingRecovery(std::optional<QStringList> codes);

    // Carries the employer's session over to the job seeker side. Without an employer token it
    // fails as "auth"; a failure changes nothing here.
    QCoro::Task<Result<QString>> adopt(std::optional<QString> employerToken);

Q_SIGNALS:
    void changed();

private:
    template <class T>
    QCoro::Task<Result<T>> postEnvelope(QString path, QByteArray body,
                                        std::optional<QString> bearer);
    void deleteSessionCookie();

    Preferences& m_preferences;
    QNetworkAccessManager& m_session;
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

} // namespace vl
