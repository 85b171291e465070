#include "app/service/SessionCookieJar.h"

namespace vl {

bool SessionCookieJar::setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url)
{
    const bool took = QNetworkCookieJar::setCookiesFromUrl(cookies, url);
    if (took)
        Q_EMIT changed();
    return took;
}

bool SessionCookieJar::insertCookie(const QNetworkCookie& cookie)
{
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
