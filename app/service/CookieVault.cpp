#include "app/service/CookieVault.h"

#include "app/platform/PendingWrites.h"
#include "app/platform/SecretStore.h"
#include "app/service/SessionCookieJar.h"
#include "app/service/StoredCookies.h"

#include <QNetworkAccessManager>
#include <QNetworkCookie>
#include <QPointer>

namespace vl {

CookieVault::CookieVault(SecretStore& secrets, PendingWrites& pending,
                         QNetworkAccessManager& session, QString site, QObject* parent)
    : QObject(parent)
    , m_secrets(secrets)
    , m_pending(pending)
    , m_jar(new SessionCookieJar(&session))
    , m_site(site)
{
    session.setCookieJar(m_jar);
    connect(m_jar, &SessionCookieJar::changed, this, [this] {
        if (!m_restoring)
            m_pending.guard(save());
    });
}

QCoro::Task<> CookieVault::restore()
{
    QPointer self(this);
    const auto kept = co_await m_secrets.get(QString::fromLatin1(storeKey));
    // A stored text no jar could have written is not read at all; the jar checks the rest
    // cookie by cookie, as it checks an answer's.
    constexpr qsizetype storedLimit =
        SessionCookieJar::totalLimit * (SessionCookieJar::cookieBytesLimit + 1);
    if (!self || !kept || kept->size() > storedLimit)
        co_return;
    const QList<QNetworkCookie> present = m_jar->cookiesForUrl(m_site);
    QList<QNetworkCookie> restored;
    for (const QNetworkCookie& cookie : readStoredCookies(*kept)) {
        const bool newer = std::any_of(present.begin(), present.end(),
                                       [&](const auto& c) { return c.name() == cookie.name(); });
        if (!newer)
            restored.append(cookie);
    }
    m_restoring = true;
    m_jar->setCookiesFromUrl(restored, m_site);
    m_restoring = false;
}

QCoro::Task<> CookieVault::save()
{
    m_dirty = true;
    if (m_saving)
        co_return;
    m_saving = true;
    QPointer self(this);
    while (self && m_dirty) {
        m_dirty = false;
        const auto cookies = m_jar->cookiesForUrl(m_site);
        if (cookies.isEmpty())
            co_await m_secrets.remove(QString::fromLatin1(storeKey));
        else
            co_await m_secrets.set(writeStoredCookies(cookies), QString::fromLatin1(storeKey));
    }
    if (self)
        m_saving = false;
}

} // namespace vl
