#include "app/service/http/HttpReply.h"

#include "app/service/http/HttpCache.h"
#include "app/service/http/HttpConnection.h"
#include "app/service/http/HttpConnectionPool.h"
#include "app/service/http/HttpSession.h"

#include <QAbstractNetworkCache>
#include <QDateTime>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <algorithm>
#include <cstring>
#include <utility>

namespace vl {

namespace {

constexpr int maxRedirects = 10;

bool sameName(QByteArrayView a, QByteArrayView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// Fields whose value this transport decides itself, whatever the request carries.
bool isTransportField(QByteArrayView name)
{
    return sameName(name, "Host") || sameName(name, "Content-Length") ||
           sameName(name, "Transfer-Encoding") || sameName(name, "Connection");
}

bool isConditionalField(QByteArrayView name)
{
    return sameName(name, "If-None-Match") || sameName(name, "If-Modified-Since") ||
           sameName(name, "If-Match") || sameName(name, "If-Unmodified-Since") ||
           sameName(name, "If-Range") || sameName(name, "Range");
}

// A field name or value that could end the line early would let a caller's value write fields
// of its own, or a second request.
bool staysOnItsLine(QByteArrayView text)
{
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

bool isToken(QByteArrayView text)
{
    static const QByteArrayView extra = "!#$%&'*+-.^_`|~";
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
               extra.contains(c);
    });
}

bool isRedirectStatus(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool isSafeMethod(QByteArrayView verb)
{
    return verb == "GET" || verb == "HEAD" || verb == "OPTIONS" || verb == "TRACE";
}

// The error Qt's own HTTP backend reports for an error status.
QNetworkReply::NetworkError statusError(int status)
{
    switch (status) {
    case 400:
    case 418:
        return QNetworkReply::ProtocolInvalidOperationError;
    case 401:
        return QNetworkReply::AuthenticationRequiredError;
    case 403:
        return QNetworkReply::ContentAccessDenied;
    case 404:
        return QNetworkReply::ContentNotFoundError;
    case 405:
        return QNetworkReply::ContentOperationNotPermittedError;
    case 407:
        return QNetworkReply::ProxyAuthenticationRequiredError;
    case 409:
        return QNetworkReply::ContentConflictError;
    case 410:
        return QNetworkReply::ContentGoneError;
    case 500:
        return QNetworkReply::InternalServerError;
    case 501:
        return QNetworkReply::OperationNotImplementedError;
    case 503:
        return QNetworkReply::ServiceUnavailableError;
    default:
        return status > 500 ? QNetworkReply::UnknownServerError
                            : QNetworkReply::UnknownContentError;
    }
}

QByteArray hostField(const QUrl& url)
{
    QByteArray host = url.host(QUrl::FullyEncoded).toLatin1();
    if (host.contains(':'))
        host = '[' + host + ']';
    const bool tls = url.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) == 0;
    const int port = url.port();
    if (port != -1 && port != (tls ? 443 : 80))
        host += ':' + QByteArray::number(port);
    return host;
}

QUrl locationOf(const HttpResponseHead& head)
{
    return QUrl(QString::fromUtf8(head.value("Location")));
}

} // namespace

HttpReply::HttpReply(HttpSession* session, QNetworkAccessManager::Operation operation,
                     const QNetworkRequest& request, QByteArray verb,
                     std::optional<QByteArray> body)
    : QNetworkReply(session)
    , m_session(session)
    , m_verb(std::move(verb))
    , m_url(request.url())
    , m_body(std::move(body))
    , m_tls(request.sslConfiguration())
    , m_usedTls(m_tls)
{
    setRequest(request);
    setUrl(m_url);
    setOperation(operation);
    const QList<QByteArray> names = request.rawHeaderList();
    for (const QByteArray& name : names)
        m_fields.append({name, request.rawHeader(name)});
    m_idleTimer.setSingleShot(true);
    m_idleTimer.setInterval(request.transferTimeout());
    connect(&m_idleTimer, &QTimer::timeout, this, &HttpReply::onIdle);
    open(QIODevice::ReadOnly);
    // The caller connects to the reply once it has it, so nothing may happen before the event
    // loop runs again, not even an answer from the cache.
    QMetaObject::invokeMethod(this, &HttpReply::startHop, Qt::QueuedConnection);
}

HttpReply::~HttpReply()
{
    if (m_connection)
        m_connection->discard();
    cancelCacheWrite();
}

void HttpReply::abort()
{
    if (m_done)
        return;
    QNetworkReply::close();
    finish(OperationCanceledError, tr("Operation canceled"));
}

void HttpReply::ignoreSslErrors()
{
    m_ignoresAllSslErrors = true;
    if (m_connection)
        m_connection->ignoreSslErrors();
}

void HttpReply::ignoreSslErrorsImplementation(const QList<QSslError>& errors)
{
    m_expectedSslErrors = errors;
    if (m_connection)
        m_connection->ignoreSslErrors(errors);
}

void HttpReply::sslConfigurationImplementation(QSslConfiguration& configuration) const
{
    configuration = m_connection ? m_connection->sslConfiguration() : m_usedTls;
}

void HttpReply::setSslConfigurationImplementation(const QSslConfiguration& configuration)
{
    m_tls = configuration;
    m_usedTls = configuration;
}

qint64 HttpReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + (m_buffer.size() - m_readPos);
}

qint64 HttpReply::readData(char* data, qint64 maxSize)
{
    const qint64 available = m_buffer.size() - m_readPos;
    if (available <= 0)
        return m_done ? -1 : 0;
    const qint64 count = qMin(maxSize, available);
    std::memcpy(data, m_buffer.constData() + m_readPos, size_t(count));
    m_readPos += qsizetype(count);
    if (m_readPos == m_buffer.size()) {
        m_buffer.clear();
        m_readPos = 0;
    } else if (m_readPos > (1 << 20)) {
        m_buffer.remove(0, m_readPos);
        m_readPos = 0;
    }
    return count;
}

void HttpReply::startHop()
{
    if (m_done)
        return;
    const bool wellFormed =
        isToken(m_verb) && std::all_of(m_fields.begin(), m_fields.end(), [](const auto& field) {
            return isToken(field.first) && staysOnItsLine(field.second);
        });
    if (!wellFormed || !m_session) {
        finish(ProtocolInvalidOperationError, tr("Invalid request to %1").arg(m_url.toString()));
        return;
    }
    if (m_verb == "GET" && answerFromCache())
        return;
    sendOverNetwork(false);
}

bool HttpReply::answerFromCache()
{
    m_stored.reset();
    const auto control = QNetworkRequest::CacheLoadControl(
        request()
            .attribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferNetwork)
            .toInt());
    // A caller's own conditional or partial request is between it and the server.
    const bool callerConditional = std::any_of(m_fields.begin(), m_fields.end(), [](const auto& f) {
        return isConditionalField(f.first);
    });
    if (control == QNetworkRequest::AlwaysNetwork || callerConditional)
        return false;
    m_stored = HttpCache(m_session->cache()).lookup(m_url, request());
    const bool usable =
        m_stored && (control != QNetworkRequest::PreferNetwork ||
                     HttpCache::isFresh(*m_stored, QDateTime::currentDateTimeUtc()));
    if (usable && serveStored(*m_stored))
        return true;
    if (control == QNetworkRequest::AlwaysCache) {
        finish(ContentNotFoundError, tr("No stored answer for %1").arg(m_url.toString()));
        return true;
    }
    if (m_stored && HttpCache::validators(*m_stored).isEmpty())
        m_stored.reset();
    return false;
}

bool HttpReply::serveStored(const QNetworkCacheMetaData& stored)
{
    const std::optional<QByteArray> body = HttpCache(m_session->cache()).body(m_url);
    if (!body) {
        m_stored.reset();
        return false;
    }
    const QNetworkCacheMetaData::AttributesMap attributes = stored.attributes();
    m_total = body->size();
    present(attributes.value(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
            attributes.value(QNetworkRequest::HttpReasonPhraseAttribute).toByteArray(),
            stored.rawHeaders(), true);
    if (!m_done && !body->isEmpty())
        appendBody(*body);
    finish();
    return true;
}

bool HttpReply::isPoolable() const
{
    return m_url.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) != 0 ||
           m_tls == QSslConfiguration::defaultConfiguration();
}

void HttpReply::sendOverNetwork(bool freshConnection)
{
    HttpConnectionPool* pool = m_session->connectionPool();
    HttpConnection* connection = isPoolable() && !freshConnection ? pool->take(m_url) : nullptr;
    if (!connection)
        connection = pool->open(m_url, m_tls);
    m_connection = connection;
    if (m_ignoresAllSslErrors)
        connection->ignoreSslErrors();
    else if (!m_expectedSslErrors.isEmpty())
        connection->ignoreSslErrors(m_expectedSslErrors);
    m_answer = Answer::Pending;
    m_requestSent = false;

    connect(connection, &HttpConnection::activity, this, [this] {
        if (m_idleTimer.interval() > 0)
            m_idleTimer.start();
    });
    connect(connection, &HttpConnection::startedConnecting, this,
            &QNetworkReply::socketStartedConnecting);
    connect(connection, &HttpConnection::encrypted, this, &QNetworkReply::encrypted);
    connect(connection, &HttpConnection::sslErrors, this, &HttpReply::onSslErrors);
    connect(connection, &HttpConnection::requestBytesWritten, this, &HttpReply::onWritten);
    connect(connection, &HttpConnection::headReceived, this, &HttpReply::onHead);
    connect(connection, &HttpConnection::bodyReceived, this, &HttpReply::onBody);
    connect(connection, &HttpConnection::completed, this, &HttpReply::onCompleted);
    connect(connection, &HttpConnection::failed, this, &HttpReply::onFailed);

    QByteArray bytes = requestBytes();
    m_requestLength = bytes.size();
    m_headLength = m_requestLength - (m_body ? m_body->size() : 0);
    if (m_idleTimer.interval() > 0)
        m_idleTimer.start();
    connection->send(std::move(bytes), m_verb == "HEAD");
}

QByteArray HttpReply::requestBytes() const
{
    QByteArray target =
        m_url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    if (!target.startsWith('/'))
        target.prepend('/');

    QByteArray bytes;
    bytes.reserve(256 + (m_body ? m_body->size() : 0));
    bytes += m_verb + ' ' + target + " HTTP/1.1\r\nHost: " + hostField(m_url) + "\r\n";
    bool callerCookie = false;
    for (const auto& field : m_fields) {
        if (isTransportField(field.first))
            continue;
        callerCookie = callerCookie || sameName(field.first, "Cookie");
        bytes += field.first + ": " + field.second + "\r\n";
    }
    if (m_stored) {
        for (const auto& field : HttpCache::validators(*m_stored))
            bytes += field.first + ": " + field.second + "\r\n";
    }
    if (m_body)
        bytes += "Content-Length: " + QByteArray::number(m_body->size()) + "\r\n";
    QNetworkCookieJar* jar = m_session->cookieJar();
    const bool loadsCookies =
        request()
            .attribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Automatic)
            .toInt() != QNetworkRequest::Manual;
    if (jar && loadsCookies && !callerCookie) {
        QByteArray cookies;
        for (const QNetworkCookie& cookie : jar->cookiesForUrl(m_url)) {
            if (!cookies.isEmpty())
                cookies += "; ";
            cookies += cookie.toRawForm(QNetworkCookie::NameAndValueOnly);
        }
        if (!cookies.isEmpty())
            bytes += "Cookie: " + cookies + "\r\n";
    }
    bytes += "\r\n";
    if (m_body)
        bytes += *m_body;
    return bytes;
}

void HttpReply::onSslErrors(const QList<QSslError>& errors)
{
    // A slot that calls ignoreSslErrors() here reaches the socket while it still waits for it.
    Q_EMIT sslErrors(errors);
}

void HttpReply::onWritten(qint64 written)
{
    if (m_body) {
        const qint64 total = m_body->size();
        Q_EMIT uploadProgress(qBound<qint64>(0, written - m_headLength, total), total);
        if (m_done)
            return;
    }
    if (!m_requestSent && written >= m_requestLength) {
        m_requestSent = true;
        Q_EMIT requestSent();
    }
}

void HttpReply::onHead()
{
    const HttpResponseHead head = m_connection->response().head();
    storeCookies(head);
    if (isFollowable(head)) {
        m_answer = Answer::Redirect;
        return;
    }
    if (head.status == 304 && m_stored) {
        m_answer = Answer::NotModified;
        return;
    }
    m_total = m_connection->response().announcedLength();
    if (m_verb == "GET")
        prepareCacheWrite(head);
    present(head.status, head.reason, head.fields, false);
}

void HttpReply::onBody(const QByteArray& chunk)
{
    // The bodies of redirects and of 304s are read to keep the connection usable, then dropped.
    if (m_answer == Answer::Presented)
        appendBody(chunk);
}

void HttpReply::onCompleted()
{
    const HttpResponseHead head = m_connection->response().head();
    releaseConnection(m_connection->isReusable());
    if (m_answer == Answer::Redirect) {
        follow(head);
        return;
    }
    QAbstractNetworkCache* store = m_session ? m_session->cache() : nullptr;
    if (m_answer == Answer::NotModified) {
        const QNetworkCacheMetaData refreshed =
            HttpCache::refresh(*m_stored, head, QDateTime::currentDateTimeUtc());
        if (store)
            store->updateMetaData(refreshed);
        if (!serveStored(refreshed))
            sendOverNetwork(false);
        return;
    }
    completeCacheWrite();
    if (store && !isSafeMethod(m_verb) && head.status < 400)
        store->remove(m_url);
    if (head.status >= 400) {
        finish(statusError(head.status),
               tr("Error transferring %1 - server replied: %2")
                   .arg(m_url.toString(), QString::fromUtf8(head.reason)));
        return;
    }
    finish();
}

void HttpReply::onFailed(QNetworkReply::NetworkError error, const QString& message)
{
    // A server may close a resting connection just as a request goes out on it; that request
    // never reached it, so it goes once more on a new connection.
    const bool resend =
        !m_resent && m_connection->hasServedBefore() && !m_connection->hasAnswerStarted();
    releaseConnection(false);
    if (resend) {
        m_resent = true;
        sendOverNetwork(true);
        return;
    }
    finish(error, message);
}

void HttpReply::onIdle()
{
    finish(TimeoutError, tr("Operation timed out"));
}

bool HttpReply::isFollowable(const HttpResponseHead& head) const
{
    if (!isRedirectStatus(head.status) || !head.has("Location"))
        return false;
    QVariant policy = request().attribute(QNetworkRequest::RedirectPolicyAttribute);
    if (!policy.isValid() && m_session)
        policy = int(m_session->redirectPolicy());
    if (policy.toInt() == QNetworkRequest::ManualRedirectPolicy)
        return false;
    const QUrl target = m_url.resolved(locationOf(head));
    const QString scheme = target.scheme().toLower();
    return target.isValid() &&
           (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

void HttpReply::follow(const HttpResponseHead& head)
{
    if (m_redirects >= qMin(maxRedirects, request().maximumRedirectsAllowed())) {
        finish(TooManyRedirectsError, tr("Too many redirects"));
        return;
    }
    ++m_redirects;
    const QUrl target = m_url.resolved(locationOf(head));
    // A browser turns a POST into a GET on 301 and 302, and anything but HEAD on 303.
    const int status = head.status;
    if ((status == 303 && m_verb != "HEAD") ||
        ((status == 301 || status == 302) && m_verb == "POST")) {
        m_verb = "GET";
        m_body.reset();
        setOperation(QNetworkAccessManager::GetOperation);
        m_fields.removeIf([](const auto& field) {
            return sameName(field.first, "Content-Type") ||
                   sameName(field.first, "Content-Encoding") ||
                   sameName(field.first, "Content-Language") ||
                   sameName(field.first, "Content-Location");
        });
    }
    // Credentials meant for one origin are not handed to another.
    if (HttpConnection::keyFor(target) != HttpConnection::keyFor(m_url))
        m_fields.removeIf([](const auto& field) { return sameName(field.first, "Authorization"); });
    m_url = target;
    m_resent = false;
    m_stored.reset();
    m_answer = Answer::Pending;
    setUrl(target);
    Q_EMIT redirected(target);
    startHop();
}

void HttpReply::storeCookies(const HttpResponseHead& head)
{
    QNetworkCookieJar* jar = m_session ? m_session->cookieJar() : nullptr;
    if (!jar ||
        request()
                .attribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Automatic)
                .toInt() == QNetworkRequest::Manual)
        return;
    QList<QNetworkCookie> cookies;
    for (const QByteArray& value : head.values("Set-Cookie"))
        cookies += QNetworkCookie::parseCookies(value);
    if (!cookies.isEmpty())
        jar->setCookiesFromUrl(cookies, m_url);
}

void HttpReply::present(int status, const QByteArray& reason,
                        const QList<QPair<QByteArray, QByteArray>>& fields, bool fromCache)
{
    m_answer = Answer::Presented;
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, status);
    setAttribute(QNetworkRequest::HttpReasonPhraseAttribute, reason);
    setAttribute(QNetworkRequest::SourceIsFromCacheAttribute, fromCache);
    // Repeated fields read as one, the way Qt's own backend joins them: cookies by line.
    for (const auto& field : fields) {
        QByteArray value = field.second;
        if (hasRawHeader(field.first))
            value = rawHeader(field.first) + (sameName(field.first, "Set-Cookie") ? "\n" : ", ") +
                    value;
        setRawHeader(field.first, value);
    }
    if (isRedirectStatus(status) && hasRawHeader("Location"))
        setAttribute(QNetworkRequest::RedirectionTargetAttribute,
                     QUrl(QString::fromUtf8(rawHeader("Location"))));
    Q_EMIT metaDataChanged();
}

void HttpReply::appendBody(const QByteArray& chunk)
{
    m_buffer.append(chunk);
    m_received += chunk.size();
    if (m_cacheWriter)
        m_cacheWriter->write(chunk);
    Q_EMIT readyRead();
    if (!m_done)
        Q_EMIT downloadProgress(m_received, m_total);
}

void HttpReply::prepareCacheWrite(const HttpResponseHead& head)
{
    QAbstractNetworkCache* store = m_session->cache();
    if (!store || !HttpCache::canStore(head, request()))
        return;
    m_cacheStore = store;
    m_cacheWriter = store->prepare(
        HttpCache::describe(m_url, head, request(), QDateTime::currentDateTimeUtc()));
}

void HttpReply::completeCacheWrite()
{
    QIODevice* writer = m_cacheWriter;
    m_cacheWriter = nullptr;
    if (writer && m_cacheStore)
        m_cacheStore->insert(writer);
}

void HttpReply::cancelCacheWrite()
{
    // Removing the URL is how a cache is told to drop an insertion it has prepared.
    const bool writing = !m_cacheWriter.isNull();
    m_cacheWriter = nullptr;
    if (writing && m_cacheStore)
        m_cacheStore->remove(m_url);
}

void HttpReply::releaseConnection(bool reusable)
{
    m_idleTimer.stop();
    HttpConnection* connection = m_connection;
    m_connection = nullptr;
    if (!connection)
        return;
    disconnect(connection, nullptr, this, nullptr);
    m_usedTls = connection->sslConfiguration();
    if (reusable && isPoolable() && m_session)
        m_session->connectionPool()->giveBack(connection);
    else
        connection->discard();
}

void HttpReply::finish(QNetworkReply::NetworkError error, const QString& message)
{
    if (m_done)
        return;
    m_done = true;
    releaseConnection(false);
    if (error != NoError) {
        cancelCacheWrite();
        setError(error, message);
        Q_EMIT errorOccurred(error);
    }
    setFinished(true);
    if (m_answer == Answer::Presented && m_total < 0)
        Q_EMIT downloadProgress(m_received, m_received);
    Q_EMIT readChannelFinished();
    Q_EMIT finished();
}

} // namespace vl
