#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSslConfiguration>
#include <QString>
#include <QUrl>

namespace vl {

class HttpConnection;

// Owns every connection of a session and keeps the resting ones per origin (scheme, host,
// port), so that the next request to that origin skips the TCP and TLS handshakes.
class HttpConnectionPool : public QObject {
    Q_OBJECT

public:
    explicit HttpConnectionPool(QObject* parent);

    // A resting connection to the URL's origin that still looks open, the most recently used
    // first, or nullptr.
    HttpConnection* take(const QUrl& url);
    HttpConnection* open(const QUrl& url, const QSslConfiguration& tls);
    // Takes a connection back after a completed exchange; keeps it only if it may carry
    // another request.
    void giveBack(HttpConnection* connection);

private:
    void drop(HttpConnection* connection);

    QHash<QString, QList<HttpConnection*>> m_resting;
};

} // namespace vl
