#pragma once

#include <QNetworkCookieJar>

namespace vl {

// The process's cookie jar, telling whoever keeps it that its content moved. It keeps what a
// careful browser keeps: no cookie for a domain the answer's host does not belong to, none
// whose name or value would break a header line, none larger than a browser takes, and no more
// cookies per domain and in all than a browser holds.
class SessionCookieJar final : public QNetworkCookieJar {
    Q_OBJECT
public:
    static constexpr qsizetype cookieBytesLimit = 4096;
    static constexpr qsizetype perDomainLimit = 50;
    static constexpr qsizetype totalLimit = 300;

    using QNetworkCookieJar::QNetworkCookieJar;

    bool setCookiesFromUrl(const QList<QNetworkCookie>& cookies, const QUrl& url) override;
    bool insertCookie(const QNetworkCookie& cookie) override;
    bool updateCookie(const QNetworkCookie& cookie) override;
    bool deleteCookie(const QNetworkCookie& cookie) override;

Q_SIGNALS:
    void changed();

protected:
    bool validateCookie(const QNetworkCookie& cookie, const QUrl& url) const override;

private:
    bool hasRoomFor(const QNetworkCookie& cookie) const;
};

} // namespace vl
