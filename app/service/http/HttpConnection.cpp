#include "app/service/http/HttpConnection.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <utility>

namespace vl {

namespace {

QNetworkReply::NetworkError replyError(QAbstractSocket::SocketError error, bool connected)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return QNetworkReply::ConnectionRefusedError;
    case QAbstractSocket::RemoteHostClosedError:
        return QNetworkReply::RemoteHostClosedError;
    case QAbstractSocket::HostNotFoundError:
        return QNetworkReply::HostNotFoundError;
    case QAbstractSocket::SocketTimeoutError:
        return QNetworkReply::TimeoutError;
    case QAbstractSocket::SslHandshakeFailedError:
        return QNetworkReply::SslHandshakeFailedError;
    case QAbstractSocket::ProxyAuthenticationRequiredError:
        return QNetworkReply::ProxyAuthenticationRequiredError;
    case QAbstractSocket::ProxyConnectionRefusedError:
        return QNetworkReply::ProxyConnectionRefusedError;
    case QAbstractSocket::ProxyConnectionClosedError:
        return QNetworkReply::ProxyConnectionClosedError;
    case QAbstractSocket::ProxyNotFoundError:
        return QNetworkReply::ProxyNotFoundError;
    case QAbstractSocket::ProxyConnectionTimeoutError:
        return QNetworkReply::ProxyTimeoutError;
    case QAbstractSocket::ProxyProtocolError:
        return QNetworkReply::UnknownProxyError;
    default:
        // A reset or a failed read on an established connection is, to the caller, the server
        // going away; before that it is a failure to reach it at all.
        return connected ? QNetworkReply::RemoteHostClosedError
                         : QNetworkReply::UnknownNetworkError;
    }
}

} // namespace

HttpConnection::HttpConnection(const QUrl& url, const QSslConfiguration& tls, QObject* parent)
    : QObject(parent)
    , m_key(keyFor(url))
    , m_host(url.host())
    , m_tls(url.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) == 0)
    , m_tlsConfiguration(tls)
{
    m_port = quint16(url.port(m_tls ? 443 : 80));
    m_restTimer.setSingleShot(true);
    connect(&m_restTimer, &QTimer::timeout, this, &HttpConnection::expire);
}

QString HttpConnection::keyFor(const QUrl& url)
{
    const QString scheme = url.scheme().toLower();
    const int port = url.port(scheme == QLatin1String("https") ? 443 : 80);
    return scheme + QLatin1String("://") + url.host().toLower() + QLatin1Char(':') +
           QString::number(port);
}

void HttpConnection::send(QByteArray request, bool answersHead)
{
    m_restTimer.stop();
    m_parser = HttpResponseParser(answersHead);
    m_headSignalled = false;
    m_reusable = false;
    m_written = 0;
    m_pending = std::move(request);
    if (!m_socket) {
        connectSocket();
        return;
    }
    m_phase = Phase::Exchanging;
    m_socket->write(std::exchange(m_pending, QByteArray()));
}

void HttpConnection::connectSocket()
{
    m_phase = Phase::Connecting;
    if (m_tls) {
        auto* socket = new QSslSocket(this);
        QSslConfiguration configuration = m_tlsConfiguration;
        configuration.setAllowedNextProtocols({QSslConfiguration::NextProtocolHttp1_1});
        socket->setSslConfiguration(configuration);
        if (m_ignoresAllSslErrors)
            socket->ignoreSslErrors();
        else if (!m_expectedSslErrors.isEmpty())
            socket->ignoreSslErrors(m_expectedSslErrors);
        connect(socket, &QSslSocket::encrypted, this, &HttpConnection::onReady);
        connect(socket, &QSslSocket::sslErrors, this, &HttpConnection::sslErrors);
        m_socket = socket;
    } else {
        m_socket = new QTcpSocket(this);
        connect(m_socket, &QTcpSocket::connected, this, &HttpConnection::onReady);
    }
    connect(m_socket, &QTcpSocket::readyRead, this, &HttpConnection::onReadyRead);
    connect(m_socket, &QTcpSocket::bytesWritten, this, &HttpConnection::onBytesWritten);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &HttpConnection::onSocketEnded);
    connect(m_socket, &QTcpSocket::disconnected, this,
            [this] { onSocketEnded(QAbstractSocket::RemoteHostClosedError); });
    Q_EMIT startedConnecting();
    if (m_phase != Phase::Connecting)
        return;
    if (m_tls)
        static_cast<QSslSocket*>(m_socket)->connectToHostEncrypted(m_host, m_port);
    else
        m_socket->connectToHost(m_host, m_port);
}

void HttpConnection::onReady()
{
    m_connected = true;
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    if (m_tls)
        Q_EMIT encrypted();
    if (m_phase != Phase::Connecting)
        return;
    Q_EMIT activity();
    if (m_phase != Phase::Connecting)
        return;
    m_phase = Phase::Exchanging;
    m_socket->write(std::exchange(m_pending, QByteArray()));
}

void HttpConnection::onBytesWritten(qint64 count)
{
    if (m_phase != Phase::Exchanging)
        return;
    m_written += count;
    Q_EMIT activity();
    if (m_phase == Phase::Exchanging)
        Q_EMIT requestBytesWritten(m_written);
}

void HttpConnection::onReadyRead()
{
    if (m_phase == Phase::Resting) {
        // The server has nothing to say to a connection it is not answering, except that it
        // closes it.
        expire();
        return;
    }
    if (m_phase == Phase::Exchanging)
        readAvailable();
    else
        m_reusable = false;
}

void HttpConnection::readAvailable()
{
    const QByteArray data = m_socket->readAll();
    if (data.isEmpty())
        return;
    Q_EMIT activity();
    if (m_phase != Phase::Exchanging)
        return;
    if (!m_parser.feed(data)) {
        fail(QNetworkReply::ProtocolFailure, tr("The server's answer is not valid HTTP"));
        return;
    }
    if (m_parser.hasHead() && !m_headSignalled) {
        m_headSignalled = true;
        Q_EMIT headReceived();
        if (m_phase != Phase::Exchanging)
            return;
    }
    passBody();
    // A server may answer before it has read the whole request (a refusal of a large upload);
    // the rest of that request would then reach it as the start of the next one.
    if (m_phase == Phase::Exchanging && m_parser.isComplete())
        finishExchange(m_parser.keepsConnection() && m_socket->bytesToWrite() == 0 &&
                       m_socket->state() == QAbstractSocket::ConnectedState);
}

void HttpConnection::passBody()
{
    const QByteArray chunk = m_parser.takeBody();
    if (!chunk.isEmpty())
        Q_EMIT bodyReceived(chunk);
}

void HttpConnection::finishExchange(bool reusable)
{
    m_phase = Phase::Ready;
    m_reusable = reusable;
    ++m_served;
    Q_EMIT completed();
}

void HttpConnection::onSocketEnded(QAbstractSocket::SocketError error)
{
    switch (m_phase) {
    case Phase::Resting:
        expire();
        return;
    case Phase::Connecting:
    case Phase::Exchanging:
        break;
    default:
        m_reusable = false;
        return;
    }
    if (m_phase == Phase::Exchanging && m_socket->bytesAvailable() > 0) {
        readAvailable();
        if (m_phase != Phase::Exchanging)
            return;
    }
    if (m_phase == Phase::Exchanging && m_parser.hasHead() && m_parser.finishAtClose()) {
        finishExchange(false);
        return;
    }
    fail(replyError(error, m_connected), m_socket->errorString());
}

void HttpConnection::fail(QNetworkReply::NetworkError error, const QString& message)
{
    m_phase = Phase::Gone;
    m_reusable = false;
    Q_EMIT failed(error, message);
}

void HttpConnection::rest(std::chrono::milliseconds limit)
{
    m_phase = Phase::Resting;
    m_restTimer.start(limit);
}

bool HttpConnection::isOpen() const
{
    return (m_phase == Phase::Ready || m_phase == Phase::Resting) && m_reusable && m_socket &&
           m_socket->state() == QAbstractSocket::ConnectedState && m_socket->bytesAvailable() == 0;
}

void HttpConnection::expire()
{
    if (m_phase == Phase::Gone)
        return;
    m_phase = Phase::Gone;
    m_restTimer.stop();
    Q_EMIT expired();
}

void HttpConnection::discard()
{
    m_phase = Phase::Gone;
    m_restTimer.stop();
    disconnect(this, nullptr, nullptr, nullptr);
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->abort();
    }
    deleteLater();
}

void HttpConnection::ignoreSslErrors()
{
    m_ignoresAllSslErrors = true;
    if (auto* socket = qobject_cast<QSslSocket*>(m_socket))
        socket->ignoreSslErrors();
}

void HttpConnection::ignoreSslErrors(const QList<QSslError>& errors)
{
    m_expectedSslErrors = errors;
    if (auto* socket = qobject_cast<QSslSocket*>(m_socket))
        socket->ignoreSslErrors(errors);
}

QSslConfiguration HttpConnection::sslConfiguration() const
{
    if (auto* socket = qobject_cast<QSslSocket*>(m_socket))
        return socket->sslConfiguration();
    return m_tlsConfiguration;
}

} // namespace vl
