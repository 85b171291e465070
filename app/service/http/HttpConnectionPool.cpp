#include "app/service/http/HttpConnectionPool.h"

#include "app/service/http/HttpConnection.h"

#include <chrono>

namespace vl {

namespace {

using namespace std::chrono_literals;

// Servers commonly close idle connections after 5 to 75 seconds; a connection kept longer would
// mostly cost a resend.
constexpr auto restLimit = 30s;
constexpr qsizetype maxRestingPerOrigin = 6;

} // namespace

HttpConnectionPool::HttpConnectionPool(QObject* parent)
    : QObject(parent)
{
}

HttpConnection* HttpConnectionPool::take(const QUrl& url)
{
    const auto found = m_resting.find(HttpConnection::keyFor(url));
    if (found == m_resting.end())
        return nullptr;
    QList<HttpConnection*>& resting = found.value();
    while (!resting.isEmpty()) {
        HttpConnection* connection = resting.takeLast();
        disconnect(connection, &HttpConnection::expired, this, nullptr);
        if (connection->isOpen())
            return connection;
        connection->discard();
    }
    m_resting.erase(found);
    return nullptr;
}

HttpConnection* HttpConnectionPool::open(const QUrl& url, const QSslConfiguration& tls)
{
    return new HttpConnection(url, tls, this);
}

void HttpConnectionPool::giveBack(HttpConnection* connection)
{
    if (!connection->isOpen() || connection->ignoresSslErrors()) {
        connection->discard();
        return;
    }
    QList<HttpConnection*>& resting = m_resting[connection->key()];
    if (resting.size() >= maxRestingPerOrigin)
        drop(resting.first());
    resting.append(connection);
    connect(connection, &HttpConnection::expired, this, [this, connection] { drop(connection); });
    connection->rest(restLimit);
}

void HttpConnectionPool::drop(HttpConnection* connection)
{
    const auto found = m_resting.find(connection->key());
    if (found != m_resting.end()) {
        found.value().removeOne(connection);
        if (found.value().isEmpty())
            m_resting.erase(found);
    }
    connection->discard();
}

} // namespace vl
