#include "app/service/NetworkSession.h"

#include "app/service/OneShotBody.h"
#include "app/service/ReplyGuard.h"

#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QNetworkDiskCache>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <QStandardPaths>

namespace vl {

namespace {

// Whether the server may already have acted on a request that went out: everything but reads.
bool changesState(QNetworkAccessManager::Operation operation, const QNetworkRequest& request)
{
    if (operation == QNetworkAccessManager::CustomOperation) {
        const QByteArray verb =
            request.attribute(QNetworkRequest::CustomVerbAttribute).toByteArray();
        return verb != "GET" && verb != "HEAD" && verb != "OPTIONS";
    }
    return operation != QNetworkAccessManager::GetOperation &&
           operation != QNetworkAccessManager::HeadOperation;
}

} // namespace

NetworkSession::NetworkSession(QObject* parent)
    : QNetworkAccessManager(parent)
{
}

void NetworkSession::trustAuthorities(QList<QSslCertificate> authorities)
{
    m_authorities = std::move(authorities);
}

bool NetworkSession::carriesCredential(const QNetworkRequest& request) const
{
    if (request.hasRawHeader("Authorization"))
        return true;
    const QNetworkCookieJar* jar = cookieJar();
    return jar && !jar->cookiesForUrl(request.url()).isEmpty();
}

QNetworkReply* NetworkSession::createRequest(Operation operation, const QNetworkRequest& original,
                                             QIODevice* outgoingData)
{
    QNetworkRequest request = original;
    // One protocol, whose failure modes the guards below were made for.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    const bool credential = carriesCredential(request);
    if (credential)
        request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // Qt's own way to skip the cache adds Cache-Control and Pragma to the request; dropping the
    // stored answer instead sends exactly the request the caller built. A stored anonymous
    // answer never stands in for one asked with a credential.
    const bool fresh =
        request
            .attribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferNetwork)
            .toInt() == QNetworkRequest::AlwaysNetwork;
    if ((credential || fresh) && operation == GetOperation) {
        if (QAbstractNetworkCache* stored = cache())
            stored->remove(request.url());
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                             QNetworkRequest::PreferNetwork);
    }
    if (request.url().scheme() == QLatin1StringView("https") && !m_authorities.isEmpty()) {
        QSslConfiguration tls = request.sslConfiguration();
        tls.addCaCertificates(m_authorities);
        request.setSslConfiguration(tls);
    }

    OneShotBody* body = nullptr;
    const bool writes = changesState(operation, request);
    if (writes) {
        body = new OneShotBody(outgoingData ? outgoingData->readAll() : QByteArray());
        request.setHeader(QNetworkRequest::ContentLengthHeader, body->bytesAvailable());
        request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
        if (operation == DeleteOperation) {
            operation = CustomOperation;
            request.setAttribute(QNetworkRequest::CustomVerbAttribute, QByteArray("DELETE"));
        }
    }
    QNetworkReply* reply = QNetworkAccessManager::createRequest(
        operation, request, body ? static_cast<QIODevice*>(body) : outgoingData);
    if (body)
        body->setParent(reply);
    const int deadline =
        request.transferTimeout() > 0 ? request.transferTimeout() : defaultDeadlineMs;
    ReplyGuard::watch(reply, {deadline, answerLimit, writes || credential});
    return reply;
}

std::unique_ptr<NetworkSession> makeNetworkSession()
{
    auto session = std::make_unique<NetworkSession>();
    auto* cache = new QNetworkDiskCache(session.get());
    cache->setCacheDirectory(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                             QStringLiteral("/http"));
    cache->setMaximumCacheSize(qint64(160) * 1024 * 1024);
    session->setCache(cache);
    return session;
}

void forgetCachedAnswers(QNetworkAccessManager& session)
{
    if (QAbstractNetworkCache* cache = session.cache())
        cache->clear();
}

} // namespace vl
