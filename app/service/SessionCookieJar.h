#pragma once

#include <QNetworkCookieJar>

namespace vl {

// The process's cookie jar, telling whoever keeps it that its content moved.
class SessionCookieJar final : public QNetworkCookieJar {
    Q_OBJECT
public:
    using QNetworkCookieJar::QNetworkCookieJar;

    bool setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url) override;
    bool insertCookie(const QNetworkCookie& cookie) override;
    bool updateCookie(const QNetworkCookie& cookie) override;
    bool deleteCookie(const QNetworkCookie& cookie) override;

Q_SIGNALS:
    void changed();
};

} // namespace vl
