#pragma once

#include "app/service/http/HttpResponseParser.h"

#include <QAbstractSocket>
#include <QByteArray>
#include <QList>
#include <QNetworkReply>
#include <QObject>
#include <QSslConfiguration>
#include <QSslError>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <chrono>

class QTcpSocket;

namespace vl {

// One TCP (or TLS) connection to an origin, carrying one exchange at a time: the request bytes
// go out, the answer comes back through the signals, decoded by HttpResponseParser. Between
// exchanges the connection may rest in the pool, where any sign of life from the server (it
// closing, or sending unasked bytes) or the idle limit ends it.
class HttpConnection : public QObject {
    Q_OBJECT

public:
    HttpConnection(const QUrl& url, const QSslConfiguration& tls, QObject* parent);

    // "scheme://host:port": connections with the same key are interchangeable.
    static QString keyFor(const QUrl& url);
    QString key() const { return m_key; }

    // Starts one exchange; connects first if needed.
    void send(QByteArray request, bool answersHead);
    // Whether an earlier exchange completed on this connection, so the server may have dropped
    // it in the meantime without our knowing yet.
    bool hasServedBefore() const { return m_served > 0; }
    bool hasAnswerStarted() const { return m_parser.hasReceivedAnything(); }
    const HttpResponseParser& response() const { return m_parser; }
    // After `completed`: whether this connection may carry another request.
    bool isReusable() const { return m_reusable; }

    // Rests in the pool; `expired` tells when it is no longer usable.
    void rest(std::chrono::milliseconds limit);
    // Whether a resting connection still looks open from our side.
    bool isOpen() const;
    // Closes the socket at once; the object goes with the next event loop pass.
    void discard();

    void ignoreSslErrors();
    void ignoreSslErrors(const QList<QSslError>& errors);
    bool ignoresSslErrors() const
    {
        return m_ignoresAllSslErrors || !m_expectedSslErrors.isEmpty();
    }
    QSslConfiguration sslConfiguration() const;

Q_SIGNALS:
    void startedConnecting();
    void encrypted();
    void sslErrors(const QList<QSslError>& errors);
    // Any byte went out or came in.
    void activity();
    void requestBytesWritten(qint64 written);
    void headReceived();
    void bodyReceived(const QByteArray& chunk);
    void completed();
    void failed(QNetworkReply::NetworkError error, const QString& message);
    void expired();

private:
    enum class Phase { Fresh, Connecting, Exchanging, Ready, Resting, Gone };

    void connectSocket();
    void onReady();
    void onReadyRead();
    void onBytesWritten(qint64 count);
    void onSocketEnded(QAbstractSocket::SocketError error);
    void readAvailable();
    void passBody();
    void finishExchange(bool reusable);
    void fail(QNetworkReply::NetworkError error, const QString& message);
    void expire();

    QString m_key;
    QString m_host;
    quint16 m_port;
    bool m_tls;
    QSslConfiguration m_tlsConfiguration;
    QTcpSocket* m_socket = nullptr;
    Phase m_phase = Phase::Fresh;
    bool m_connected = false;
    bool m_ignoresAllSslErrors = false;
    QList<QSslError> m_expectedSslErrors;
    bool m_reusable = false;
    int m_served = 0;
    QByteArray m_pending;
    qint64 m_written = 0;
    HttpResponseParser m_parser;
    bool m_headSignalled = false;
    QTimer m_restTimer;
};

} // namespace vl
