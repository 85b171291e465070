#include "app/identity/CandidateAuth.h"

#include "app/platform/Preferences.h"

#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QUrl>

namespace vl {

namespace {

const QString emailKey = QStringLiteral("vl.candidateEmail");
const QString adoptedKey = QStringLiteral("vl.candidateAdopted");
const QString declinedKey = QStringLiteral("vl.seekerDeclined");

} // namespace

CandidateAuth::CandidateAuth(Preferences& preferences, QNetworkAccessManager& session, QString site,
                             QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_session(session)
    , m_site(std::move(site))
    , m_adoptedFromEmployer(preferences.value(adoptedKey).toBool())
    , m_declined(preferences.value(declinedKey).toBool())
{
    const QString stored = preferences.string(emailKey);
    if (!stored.isEmpty())
        m_email = stored;
}

void CandidateAuth::completeSignIn(const QString& email)
{
    m_email = email;
    m_declined = false;
    m_preferences.setValue(emailKey, email);
    m_preferences.setValue(declinedKey, false);
    Q_EMIT changed();
}

void CandidateAuth::markAdopted()
{
    m_adoptedFromEmployer = true;
    m_preferences.setValue(adoptedKey, true);
    Q_EMIT changed();
}

void CandidateAuth::signOut()
{
    m_email.reset();
    m_adoptedFromEmployer = false;
    m_declined = true;
    m_preferences.remove(emailKey);
    m_preferences.setValue(adoptedKey, false);
    m_preferences.setValue(declinedKey, true);
    deleteSessionCookie();
    Q_EMIT changed();
}

void CandidateAuth::employerSignedOut()
{
    if (!m_email || !m_adoptedFromEmployer)
        return;
    signOut();
    m_declined = false;
    m_preferences.setValue(declinedKey, false);
    Q_EMIT changed();
}

void CandidateAuth::setPendingRecovery(std::optional<QStringList> codes)
{
    m_pendingRecovery = std::move(codes);
    Q_EMIT changed();
}

QCoro::Task<Result<QString>> CandidateAuth::adopt(std::optional<QString> employerToken)
{
    if (!employerToken)
        co_return APIError::server(QStringLiteral("auth"));
    QPointer self(this);
    const auto adopted = co_await postEnvelope<Adopted>(
        QStringLiteral("/api/app/v1/candidate/adopt"), "{}", employerToken);
    if (!adopted)
        co_return adopted.error();
    if (self) {
        markAdopted();
        completeSignIn(adopted->email);
    }
    co_return adopted->email;
}

void CandidateAuth::deleteSessionCookie()
{
    const QUrl origin(m_site);
    QNetworkCookieJar& jar = *m_session.cookieJar();
    const auto cookies = jar.cookiesForUrl(origin);
    for (const QNetworkCookie& cookie : cookies) {
        if (cookie.name() == "vl_cand")
            jar.deleteCookie(cookie);
    }
}

} // namespace vl
