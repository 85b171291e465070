#include "app/shell/AuthManager.h"

#include "app/conversations/InboxState.h"
#include "app/hiring/QuotaStore.h"
#include "app/identity/CandidateAuth.h"
#include "app/platform/PendingWrites.h"
#include "app/platform/Preferences.h"
#include "app/platform/SecretStore.h"
#include "app/service/APIClient.h"

#include <QPointer>

namespace vl {

namespace {

const QString sessionKey = QStringLiteral("session");

} // namespace

AuthManager::AuthManager(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
}

QCoro::Task<> AuthManager::start()
{
    QPointer self(this);
    auto token = co_await m_parts.secrets.get(sessionKey);
    if (!self || m_token)
        co_return;
    if (token && !token->isEmpty()) {
        m_token = std::move(token);
        Q_EMIT sessionChanged();
    }
}

QCoro::Task<> AuthManager::refresh()
{
    if (!m_token)
        co_return;
    QPointer self(this);
    const QString asked = *m_token;
    auto me = co_await m_parts.api.me(this);
    if (!self || m_token != asked)
        co_return;
    if (me) {
        m_me = std::move(me).value();
        Q_EMIT meChanged();
    } else if (me.error().isServer(QLatin1StringView("auth"))) {
        co_await clearSession();
    }
}

QCoro::Task<> AuthManager::signedIn(QString token)
{
    m_token = token;
    m_me.reset();
    Q_EMIT sessionChanged();
    QPointer self(this);
    co_await m_parts.pending.guard(m_parts.secrets.set(token, sessionKey));
    if (!self)
        co_return;
    co_await refresh();
    if (self && m_me)
        co_await adoptSeekerIdentity();
}

QCoro::Task<> AuthManager::logOut()
{
    const QString push = m_parts.preferences.string(QStringLiteral("vl.pushToken"));
    const QString voip = m_parts.preferences.string(QStringLiteral("vl.voipToken"));
    co_await m_parts.pending.guard(endSession(push, voip));
}

QCoro::Task<> AuthManager::endSession(QString pushToken, QString voipToken)
{
    QPointer self(this);
    co_await m_parts.api.authLogout(pushToken, voipToken, this);
    if (self)
        co_await clearSession();
}

QCoro::Task<bool> AuthManager::deleteAccount()
{
    QPointer self(this);
    const auto deleted = co_await m_parts.api.deleteMe(this);
    if (!deleted || !self)
        co_return false;
    co_await clearSession();
    co_return true;
}

QCoro::Task<> AuthManager::clearSession()
{
    m_token.reset();
    m_me.reset();
    auto removed = m_parts.pending.guard(m_parts.secrets.remove(sessionKey));
    auto carried = m_parts.pending.guard(m_parts.candidate.employerSignedOut());
    if (!m_parts.candidate.signedIn())
        m_parts.inbox.reset();
    m_parts.quota.reset();
    Q_EMIT sessionChanged();
    Q_EMIT meChanged();
    co_await std::move(removed);
    co_await std::move(carried);
}

QCoro::Task<> AuthManager::adoptSeekerIdentity()
{
    if (!m_token || m_parts.candidate.signedIn() || m_parts.candidate.declined())
        co_return;
    co_await m_parts.candidate.adopt(m_token);
}

} // namespace vl
