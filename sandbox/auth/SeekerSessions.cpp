#include "sandbox/auth/SeekerSessions.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/http/Request.h"

namespace vl {

SeekerSessions::SeekerSessions(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

QString SeekerSessions::open(qint64 seeker)
{
    const QString token = Secrets::token();
    m_store.exec(
        QStringLiteral("INSERT INTO seeker_sessions(token, seeker_id, created_at) VALUES(?, ?, ?)"),
        {token, seeker, m_clock.now()});
    return token;
}

std::optional<qint64> SeekerSessions::seekerOf(const Request& request) const
{
    const QString token = request.cookie(cookieName);
    if (token.isEmpty())
        return std::nullopt;
    const QVariant id = m_store.scalar(
        QStringLiteral("SELECT seeker_id FROM seeker_sessions WHERE token = ? AND created_at > ?"),
        {token, m_clock.now() - lifetime});
    return id.isValid() ? std::optional(id.toLongLong()) : std::nullopt;
}

void SeekerSessions::close(const Request& request)
{
    m_store.exec(QStringLiteral("DELETE FROM seeker_sessions WHERE token = ?"),
                 {request.cookie(cookieName)});
}

QByteArray SeekerSessions::setCookie(const QString& token)
{
    return cookieName.toByteArray() + '=' + token.toLatin1() +
           "; Path=/; HttpOnly; SameSite=Lax; Max-Age=" + QByteArray::number(lifetime);
}

QByteArray SeekerSessions::clearCookie()
{
    return cookieName.toByteArray() + "=; Path=/; HttpOnly; SameSite=Lax; Max-Age=0";
}

} // namespace vl
