#pragma once

#include <QList>
#include <QNetworkCookie>
#include <QString>

namespace vl {

// The form the cookie vault keeps in the secure store: one cookie a line, in its full
// Set-Cookie form. Reading takes whatever the store hands back, however it was damaged.
QList<QNetworkCookie> readStoredCookies(const QString& kept);
QString writeStoredCookies(const QList<QNetworkCookie>& cookies);

} // namespace vl
