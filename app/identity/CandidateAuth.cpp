#include "app/identity/CandidateAuth.h"

#include "app/platform/PendingWrites.h"
#include "app/platform/Preferences.h"
#include "app/service/NetworkSession.h"
#include "core/identity/WebAuthn.h"
#include "core/service/JsonBody.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QUrl>

namespace vl {

namespace {

const QString emailKey = QStringLiteral("vl.candidateEmail");
const QString adoptedKey = QStringLiteral("vl.candidateAdopted");
const QString declinedKey = QStringLiteral("vl.seekerDeclined");
const QString mfa = QStringLiteral("/api/candidate/mfa/");

QByteArray ticketBody(const QString& ticket)
{
    return stringBody({{QStringLiteral("ticket"), ticket}});
}

QByteArray tokenBody(const QString& token)
{
    return stringBody({{QStringLiteral("token"), token}});
}

// Coroutines build their bodies here: a braced list of pairs does not survive a coroutine frame
// with this compiler.
QByteArray pairBody(const char* firstKey, const QString& first, const char* secondKey,
                    const QString& second)
{
    return stringBody(
        {{QString::fromLatin1(firstKey), first}, {QString::fromLatin1(secondKey), second}});
}

QByteArray registrationBody(const QString& ticket, const PasskeyRegistration& credential)
{
    return stringBody(
        {{QStringLiteral("ticket"), ticket},
         {QStringLiteral("attestationObject"), encodeWebAuthn(credential.attestationObject)},
         {QStringLiteral("clientDataJSON"), encodeWebAuthn(credential.clientDataJSON)},
         {QStringLiteral("label"), QStringLiteral("iPhone passkey")}});
}

QStringList recoveryOf(const FactorDone& done)
{
    QStringList codes;
    if (done.recovery)
        for (const QString& code : *done.recovery)
            codes.append(code);
    return codes;
}

// The ceremony's own end when it is not the credential the step waits for.
template <class Wanted>
std::optional<PasskeyError> ceremonyFailure(const PasskeyOutcome& outcome)
{
    if (std::holds_alternative<Wanted>(outcome))
        return std::nullopt;
    if (std::holds_alternative<PasskeyCanceled>(outcome))
        return PasskeyError{PasskeyCanceled{}};
    if (std::holds_alternative<PasskeyFailed>(outcome))
        return PasskeyError{PasskeyFailed{}};
    return PasskeyError{APIError::server(QStringLiteral("generic"))};
}

QByteArray assertionBody(const char* leadKey, const QString& lead,
                         const PasskeyAssertion& assertion)
{
    QJsonObject body;
    body.insert(QString::fromLatin1(leadKey), lead);
    body.insert(QStringLiteral("credentialId"), encodeWebAuthn(assertion.credentialId));
    body.insert(QStringLiteral("authenticatorData"), encodeWebAuthn(assertion.authenticatorData));
    body.insert(QStringLiteral("clientDataJSON"), encodeWebAuthn(assertion.clientDataJSON));
    body.insert(QStringLiteral("signature"), encodeWebAuthn(assertion.signature));
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

} // namespace

CandidateAuth::CandidateAuth(Parts parts, QString site, QObject* parent)
    : QObject(parent)
    , m_preferences(parts.preferences)
    , m_session(parts.session)
    , m_passkeys(parts.passkeys)
    , m_pending(parts.pending)
    , m_site(std::move(site))
    , m_adoptedFromEmployer(m_preferences.value(adoptedKey).toBool())
    , m_declined(m_preferences.value(declinedKey).toBool())
{
    const QString stored = m_preferences.string(emailKey);
    if (!stored.isEmpty())
        m_email = stored;
}

QUrl CandidateAuth::oauthUrl(Lang lang) const
{
    return QUrl(m_site + QStringLiteral("/api/candidate/oauth?provider=google&app=1&hl=") +
                rawValue(lang));
}

bool CandidateAuth::receiveCallback(const QUrl& url)
{
    if (url.scheme() != QLatin1StringView("velm"))
        return false;
    Q_EMIT callbackReceived(url);
    return true;
}

void CandidateAuth::completeSignIn(const QString& email)
{
    m_email = email;
    m_declined = false;
    m_preferences.setValue(emailKey, email);
    m_preferences.setValue(declinedKey, false);
    Q_EMIT changed();
}

void CandidateAuth::sessionLost()
{
    m_email.reset();
    m_preferences.remove(emailKey);
    Q_EMIT changed();
}

void CandidateAuth::markAdopted()
{
    m_adoptedFromEmployer = true;
    m_preferences.setValue(adoptedKey, true);
    Q_EMIT changed();
}

QCoro::Task<> CandidateAuth::signOut()
{
    const QString push = m_preferences.string(QStringLiteral("vl.pushToken"));
    const QString voip = m_preferences.string(QStringLiteral("vl.voipToken"));
    m_adoptedFromEmployer = false;
    m_preferences.setValue(adoptedKey, false);
    m_declined = true;
    m_preferences.setValue(declinedKey, true);
    m_email.reset();
    m_preferences.remove(emailKey);
    forgetCachedAnswers(m_session);
    Q_EMIT changed();
    co_await m_pending.guard(finishSignOut(push, voip));
}

QCoro::Task<> CandidateAuth::finishSignOut(QString pushToken, QString voipToken)
{
    QPointer self(this);
    const QStringList tokens{pushToken, voipToken};
    for (const QString& token : tokens) {
        if (token.isEmpty())
            continue;
        const QByteArray body = tokenBody(token);
        co_await postEnvelope<Nothing>(QStringLiteral("/api/app/v1/push/unregister"), body,
                                       std::nullopt);
        if (!self)
            co_return;
    }
    QNetworkRequest request(QUrl(m_site + QStringLiteral("/api/candidate/logout")));
    request.setTransferTimeout(60000);
    request.setRawHeader("x-vl-client", "ios");
    request.setRawHeader("Origin", m_site.toUtf8());
    QNetworkReply* reply = m_session.post(request, QByteArray());
    cancelWithOwner(reply, this);
    co_await finish(reply);
    if (self)
        deleteSessionCookie();
}

QCoro::Task<> CandidateAuth::employerSignedOut()
{
    if (!m_email || !m_adoptedFromEmployer)
        co_return;
    auto network = signOut();
    m_declined = false;
    m_preferences.setValue(declinedKey, false);
    Q_EMIT changed();
    co_await std::move(network);
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

QCoro::Task<Result<Sent>> CandidateAuth::sendCode(QString email, Lang lang)
{
    co_return co_await postEnvelope<Sent>(QStringLiteral("/api/app/v1/candidate/code"),
                                          pairBody("email", email, "locale", rawValue(lang)),
                                          std::nullopt);
}

QCoro::Task<Result<QString>> CandidateAuth::verify(QString email, QString code)
{
    auto ticket =
        co_await postEnvelope<Ticket>(QStringLiteral("/api/app/v1/candidate/verify"),
                                      pairBody("email", email, "code", code), std::nullopt);
    if (!ticket)
        co_return ticket.error();
    co_return ticket->ticket;
}

QCoro::Task<Result<FactorState>> CandidateAuth::factorState(QString ticket)
{
    co_return co_await postFactor<FactorState>(mfa + QStringLiteral("state"), ticketBody(ticket));
}

QCoro::Task<Result<FactorDone>> CandidateAuth::continueMailOnly(QString ticket, QString email)
{
    QPointer self(this);
    auto done =
        co_await postFactor<FactorDone>(mfa + QStringLiteral("continue"), ticketBody(ticket));
    if (done && self)
        completeSignIn(email);
    co_return done;
}

QCoro::Task<Result<QString>> CandidateAuth::totpSetup(QString ticket)
{
    auto setup = co_await postFactor<Setup>(mfa + QStringLiteral("totp-setup"), ticketBody(ticket));
    if (!setup)
        co_return setup.error();
    co_return setup->secret;
}

QCoro::Task<Result<QStringList>> CandidateAuth::totpEnroll(QString ticket, QString code,
                                                           QString email)
{
    QPointer self(this);
    auto done = co_await postFactor<FactorDone>(mfa + QStringLiteral("totp-enroll"),
                                                pairBody("ticket", ticket, "code", code));
    if (!done)
        co_return done.error();
    if (self)
        completeSignIn(email);
    co_return recoveryOf(*done);
}

QCoro::Task<Result<FactorDone>> CandidateAuth::totpLogin(QString ticket, QString code,
                                                         QString email)
{
    QPointer self(this);
    auto done = co_await postFactor<FactorDone>(mfa + QStringLiteral("totp-login"),
                                                pairBody("ticket", ticket, "code", code));
    if (done && self)
        completeSignIn(email);
    co_return done;
}

QCoro::Task<PasskeyResult<QStringList>> CandidateAuth::registerPasskey(QString ticket,
                                                                       QString email)
{
    QPointer self(this);
    const auto options =
        co_await postFactor<RegOptions>(mfa + QStringLiteral("reg-options"), ticketBody(ticket));
    if (!options)
        co_return PasskeyError{options.error()};
    if (!self)
        co_return PasskeyError{APIError::network()};
    const PasskeyOutcome outcome =
        co_await m_passkeys.createCredential(relyingParty(), decodeChallenge(options->challenge),
                                             email, decodeChallenge(options->user.id));
    if (auto failure = ceremonyFailure<PasskeyRegistration>(outcome))
        co_return *failure;
    const auto& credential = std::get<PasskeyRegistration>(outcome);
    if (credential.attestationObject.isEmpty())
        co_return PasskeyError{APIError::server(QStringLiteral("generic"))};
    if (!self)
        co_return PasskeyError{APIError::network()};
    auto done = co_await postFactor<FactorDone>(mfa + QStringLiteral("reg-verify"),
                                                registrationBody(ticket, credential));
    if (!done)
        co_return PasskeyError{done.error()};
    if (self)
        completeSignIn(email);
    co_return recoveryOf(*done);
}

QCoro::Task<PasskeyResult<FactorDone>> CandidateAuth::verifyPasskey(QString ticket, QString email)
{
    QPointer self(this);
    const auto options =
        co_await postFactor<AuthOptions>(mfa + QStringLiteral("auth-options"), ticketBody(ticket));
    if (!options)
        co_return PasskeyError{options.error()};
    if (!self)
        co_return PasskeyError{APIError::network()};
    const PasskeyOutcome outcome = co_await m_passkeys.getAssertion(
        relyingParty(), decodeChallenge(options->challenge), false, false);
    if (auto failure = ceremonyFailure<PasskeyAssertion>(outcome))
        co_return *failure;
    if (!self)
        co_return PasskeyError{APIError::network()};
    auto done = co_await postFactor<FactorDone>(
        mfa + QStringLiteral("auth-verify"),
        assertionBody("ticket", ticket, std::get<PasskeyAssertion>(outcome)));
    if (!done)
        co_return PasskeyError{done.error()};
    if (self)
        completeSignIn(email);
    co_return std::move(done).value();
}

QCoro::Task<PasskeyResult<QString>> CandidateAuth::signInWithPasskey()
{
    QPointer self(this);
    const auto options =
        co_await postFactor<Options>(QStringLiteral("/api/candidate/passkey/options"), "{}");
    if (!options)
        co_return PasskeyError{options.error()};
    if (!self)
        co_return PasskeyError{APIError::network()};
    const PasskeyOutcome outcome = co_await m_passkeys.getAssertion(
        relyingParty(), decodeChallenge(options->challenge), true, true);
    if (auto failure = ceremonyFailure<PasskeyAssertion>(outcome))
        co_return *failure;
    if (!self)
        co_return PasskeyError{APIError::network()};
    auto done = co_await postFactor<candidateReply::Done>(
        QStringLiteral("/api/candidate/passkey/verify"),
        assertionBody("nonce", options->nonce, std::get<PasskeyAssertion>(outcome)));
    if (!done)
        co_return PasskeyError{done.error()};
    if (self)
        completeSignIn(done->email);
    co_return done->email;
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

QString CandidateAuth::relyingParty() const
{
    return QUrl(m_site).host();
}

} // namespace vl
