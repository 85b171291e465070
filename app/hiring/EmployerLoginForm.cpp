#include "app/hiring/EmployerLoginForm.h"

#include "app/identity/CandidateAuth.h"
#include "app/service/APIClient.h"
#include "app/shell/AppState.h"
#include "app/shell/AuthManager.h"
#include "core/l10n/L10n.h"

#include <QPointer>

namespace vl {

EmployerLoginForm::EmployerLoginForm(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
}

QCoro::Task<> EmployerLoginForm::sendCode()
{
    const Lang lang = m_parts.appState.lang();
    const QString address = email;
    if (!address.contains(QLatin1Char('@')) || !address.contains(QLatin1Char('.'))) {
        fail(L10n::text(L10n::Key::errEmail, lang));
        co_return;
    }
    m_error.reset();
    setWorking(true);
    QPointer self(this);
    const auto sent = co_await m_parts.api.authRequest(address, lang, this);
    if (!self)
        co_return;
    if (sent)
        m_stage = Stage::code;
    else
        m_error = sent.error().message(lang);
    setWorking(false);
}

QCoro::Task<> EmployerLoginForm::verifyCode()
{
    const Lang lang = m_parts.appState.lang();
    const QString typed = code;
    if (typed.size() != 6) {
        fail(L10n::text(L10n::Key::errCode, lang));
        co_return;
    }
    m_error.reset();
    setWorking(true);
    QPointer self(this);
    const auto verified = co_await m_parts.api.authVerify(email, typed, this);
    if (!self)
        co_return;
    if (!verified) {
        m_error = verified.error().message(lang);
        setWorking(false);
        co_return;
    }
    // The same address also has a job seeker account: carry it over without a call of its own.
    if (verified->seeker.value_or(false) && !m_parts.candidate.signedIn()) {
        m_parts.candidate.markAdopted();
        m_parts.candidate.completeSignIn(verified->employer.email);
    }
    co_await m_parts.auth.signedIn(verified->token);
    if (!self)
        co_return;
    setWorking(false);
    Q_EMIT done();
}

void EmployerLoginForm::changeEmail()
{
    m_stage = Stage::email;
    code.clear();
    m_error.reset();
    Q_EMIT changed();
}

void EmployerLoginForm::setWorking(bool working)
{
    m_working = working;
    Q_EMIT changed();
}

void EmployerLoginForm::fail(QString message)
{
    m_error = std::move(message);
    Q_EMIT changed();
}

} // namespace vl
