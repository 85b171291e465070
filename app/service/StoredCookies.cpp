#include "app/service/StoredCookies.h"

#include <QStringList>

namespace vl {

QList<QNetworkCookie> readStoredCookies(const QString& kept)
{
    QList<QNetworkCookie> cookies;
    const auto lines = kept.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        cookies.append(QNetworkCookie::parseCookies(line.toUtf8()));
    return cookies;
}

QString writeStoredCookies(const QList<QNetworkCookie>& cookies)
{
    QStringList lines;
    for (const QNetworkCookie& cookie : cookies)
        lines.append(QString::fromUtf8(cookie.toRawForm(QNetworkCookie::Full)));
    return lines.join(u'\n');
}

} // namespace vl
