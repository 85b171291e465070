#include "app/identity/CandidateGate.h"

#include "app/shell/AppState.h"
#include "core/identity/OAuthCallback.h"
#include "core/identity/TotpKey.h"
#include "core/l10n/L10n.h"

#include <QPointer>

namespace vl {

CandidateGate::CandidateGate(CandidateAuth& auth, AppState& appState, UrlOpener openUrl,
                             QObject* parent)
    : QObject(parent)
    , m_auth(auth)
    , m_appState(appState)
    , m_openUrl(std::move(openUrl))
{
    connect(&m_auth, &CandidateAuth::callbackReceived, this,
            [this](const QUrl& url) { handleCallback(url); });
    // A sign-out while the form still shows its finished sign-in: the next one starts afresh.
    connect(&m_auth, &CandidateAuth::changed, this, [this] {
        if (m_finished && !m_auth.signedIn())
            reset();
    });
}

QString CandidateGate::groupedTotpSecret() const
{
    return groupedSecret(m_totpSecret);
}

CandidateGate::Pending CandidateGate::pending() const
{
    return {m_step, email, m_ticket, m_mailOnly, m_totpSecret};
}

void CandidateGate::resume(const Pending& pending)
{
    m_step = pending.step;
    email = pending.email;
    m_ticket = pending.ticket;
    m_mailOnly = pending.mailOnly;
    m_totpSecret = pending.totpSecret;
    Q_EMIT changed();
}

void CandidateGate::reset()
{
    resume({});
    code.clear();
    m_error.reset();
    m_noPasskey = false;
    m_finished = false;
    Q_EMIT changed();
}

QCoro::Task<> CandidateGate::sendCode()
{
    if (m_busy)
        co_return;
    if (!email.contains(u'@')) {
        m_error = L10n::text(L10n::Key::errEmail, m_appState.lang());
        Q_EMIT changed();
        co_return;
    }
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto sent = co_await m_auth.sendCode(email, m_appState.lang());
        if (!sent)
            co_return messageOf(sent.error());
        m_step = Step::code;
        co_return std::nullopt;
    });
}

void CandidateGate::continueWithGoogle()
{
    if (!m_busy)
        m_openUrl(m_auth.oauthUrl(m_appState.lang()));
}

QCoro::Task<> CandidateGate::handleCallback(QUrl url)
{
    if (m_busy)
        co_return;
    const auto callback = parseOAuthCallback(url);
    if (!callback) {
        m_error = L10n::text(L10n::Key::errGeneric, m_appState.lang());
        Q_EMIT changed();
        co_return;
    }
    m_ticket = callback->ticket;
    email = callback->email;
    co_await runBusy([this] { return routeAfterTicket(); });
}

QCoro::Task<> CandidateGate::signInWithPasskey()
{
    if (m_busy)
        co_return;
    m_noPasskey = false;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto signedIn = co_await m_auth.signInWithPasskey();
        if (signedIn) {
            finish();
            co_return std::nullopt;
        }
        const auto& reason = signedIn.error().reason;
        const auto* apiError = std::get_if<APIError>(&reason);
        if (std::holds_alternative<PasskeyCanceled>(reason) ||
            (apiError && apiError->isServer(QLatin1StringView("unknown credential")))) {
            m_noPasskey = true;
            co_return std::nullopt;
        }
        if (apiError)
            co_return messageOf(*apiError);
        co_return L10n::text(L10n::Key::passkeyFailed, m_appState.lang());
    });
}

QCoro::Task<> CandidateGate::verifyCode()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto ticket = co_await m_auth.verify(email, code);
        if (!ticket)
            co_return messageOf(ticket.error());
        m_ticket = *ticket;
        code.clear();
        co_return co_await routeAfterTicket();
    });
}

QCoro::Task<> CandidateGate::createPasskey()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto recovery = co_await m_auth.registerPasskey(m_ticket, email);
        if (!recovery)
            co_return messageOf(recovery.error());
        finish();
        m_auth.setPendingRecovery(*recovery);
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::useAuthenticatorApp()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto secret = co_await m_auth.totpSetup(m_ticket);
        if (!secret)
            co_return messageOf(secret.error());
        m_totpSecret = *secret;
        m_step = Step::totpEnroll;
        // No authenticator taking the link holds nothing up: the key is on the form.
        m_openUrl(QUrl(otpauthUri(m_totpSecret)));
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::continueMailOnly()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto done = co_await m_auth.continueMailOnly(m_ticket, email);
        if (!done)
            co_return messageOf(done.error());
        finish();
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::usePasskey()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto done = co_await m_auth.verifyPasskey(m_ticket, email);
        if (!done)
            co_return messageOf(done.error());
        finish();
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::verifyFactor()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto done = co_await m_auth.totpLogin(m_ticket, code, email);
        if (!done)
            co_return messageOf(done.error());
        finish();
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::enrollTotp()
{
    if (m_busy)
        co_return;
    co_await runBusy([this]() -> QCoro::Task<Outcome> {
        const auto recovery = co_await m_auth.totpEnroll(m_ticket, code, email);
        if (!recovery)
            co_return messageOf(recovery.error());
        finish();
        m_auth.setPendingRecovery(*recovery);
        co_return std::nullopt;
    });
}

QCoro::Task<> CandidateGate::runBusy(std::function<QCoro::Task<Outcome>()> work)
{
    m_busy = true;
    m_error.reset();
    Q_EMIT changed();
    QPointer self(this);
    const Outcome failure = co_await work();
    if (!self)
        co_return;
    m_error = failure;
    m_busy = false;
    Q_EMIT changed();
}

QCoro::Task<CandidateGate::Outcome> CandidateGate::routeAfterTicket()
{
    const auto state = co_await m_auth.factorState(m_ticket);
    if (!state)
        co_return messageOf(state.error());
    m_mailOnly = state->mailOnly.value_or(false);
    if (!m_mailOnly) {
        m_step = state->enrolled ? Step::factorVerify : Step::factorEnroll;
        co_return std::nullopt;
    }
    if (!state->enrolled) {
        m_step = Step::factorEnroll;
        co_return std::nullopt;
    }
    const auto done = co_await m_auth.continueMailOnly(m_ticket, email);
    if (!done)
        co_return messageOf(done.error());
    finish();
    co_return std::nullopt;
}

QString CandidateGate::messageOf(const APIError& error) const
{
    return error.message(m_appState.lang());
}

QString CandidateGate::messageOf(const PasskeyError& error) const
{
    if (const auto* apiError = std::get_if<APIError>(&error.reason))
        return messageOf(*apiError);
    return L10n::text(L10n::Key::errGeneric, m_appState.lang());
}

void CandidateGate::finish()
{
    m_finished = true;
    m_ticket.clear();
}

} // namespace vl
