#include "app/service/SessionCookieJar.h"

#include <QHostAddress>
#include <QNetworkCookie>
#include <QUrl>

namespace vl {

namespace {

bool breaksLine(const QByteArray& text)
{
    return text.contains('\r') || text.contains('\n') || text.contains('\0');
}

// The domain a cookie is set for must be the answering host or one of its parents, never a
// child or a sibling; an address stands only for itself.
bool domainFits(const QNetworkCookie& cookie, const QUrl& url)
{
    const QString host = url.host().toLower();
    QString domain = cookie.domain().toLower();
    if (domain.isEmpty())
        return true;
    if (domain.startsWith(QLatin1Char('.')))
        domain.remove(0, 1);
    if (domain == host)
        return true;
    if (QHostAddress().setAddress(host))
        return false;
    return !domain.isEmpty() && host.endsWith(QLatin1Char('.') + domain);
}

} // namespace

bool SessionCookieJar::validateCookie(const QNetworkCookie& cookie, const QUrl& url) const
{
    if (breaksLine(cookie.name()) || breaksLine(cookie.value()) ||
        breaksLine(cookie.path().toUtf8()) || breaksLine(cookie.domain().toUtf8()))
        return false;
    if (cookie.name().isEmpty() || cookie.toRawForm(QNetworkCookie::Full).size() > cookieBytesLimit)
        return false;
    return domainFits(cookie, url) && QNetworkCookieJar::validateCookie(cookie, url);
}

bool SessionCookieJar::hasRoomFor(const QNetworkCookie& cookie) const
{
    qsizetype total = 0;
    qsizetype sameDomain = 0;
    const QList<QNetworkCookie> kept = allCookies();
    for (const QNetworkCookie& other : kept) {
        if (other.hasSameIdentifier(cookie))
            continue;
        ++total;
        if (other.domain() == cookie.domain())
            ++sameDomain;
    }
    return total < totalLimit && sameDomain < perDomainLimit;
}

bool SessionCookieJar::setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url)
{
    const bool took = QNetworkCookieJar::setCookiesFromUrl(cookies, url);
    if (took)
        Q_EMIT changed();
    return took;
}

bool SessionCookieJar::insertCookie(const QNetworkCookie& cookie)
{
    if (!hasRoomFor(cookie))
        return false;
    const bool took = QNetworkCookieJar::insertCookie(cookie);
    if (took)
        Q_EMIT changed();
    return took;
}

bool SessionCookieJar::updateCookie(const QNetworkCookie& cookie)
{
    const bool took = QNetworkCookieJar::updateCookie(cookie);
    if (took)
        Q_EMIT changed();
    return took;
}

bool SessionCookieJar::deleteCookie(const QNetworkCookie& cookie)
{
    const bool took = QNetworkCookieJar::deleteCookie(cookie);
    if (took)
        Q_EMIT changed();
    return took;
}

} // namespace vl
