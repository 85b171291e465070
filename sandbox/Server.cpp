#include "sandbox/Server.h"

#include "sandbox/Router.h"
#include "sandbox/dev/FaultTable.h"
#include "sandbox/dev/RequestLog.h"
#include "sandbox/http/Listener.h"

#include <QHttpServerRequest>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

namespace vl {

namespace {

QByteArray methodName(QHttpServerRequest::Method method)
{
    switch (method) {
    case QHttpServerRequest::Method::Get:
        return "GET";
    case QHttpServerRequest::Method::Put:
        return "PUT";
    case QHttpServerRequest::Method::Delete:
        return "DELETE";
    case QHttpServerRequest::Method::Post:
        return "POST";
    case QHttpServerRequest::Method::Head:
        return "HEAD";
    case QHttpServerRequest::Method::Options:
        return "OPTIONS";
    case QHttpServerRequest::Method::Patch:
        return "PATCH";
    case QHttpServerRequest::Method::Connect:
        return "CONNECT";
    case QHttpServerRequest::Method::Trace:
        return "TRACE";
    default:
        return "UNKNOWN";
    }
}

bool isDevPath(const QString& path)
{
    return path.startsWith(QLatin1String("/dev/"));
}

} // namespace

Server::Server(const Router& router, RequestLog& log, FaultTable& faults, QObject* parent)
    : QAbstractHttpServer(parent)
    , m_router(router)
    , m_log(log)
    , m_faults(faults)
{
}

quint16 Server::start(quint16 port)
{
    auto* listener = new Listener(this);
    if (!listener->listen(QHostAddress::LocalHost, port)) {
        delete listener;
        return 0;
    }
    bind(listener);
    m_port = listener->serverPort();
    return m_port;
}

Request Server::copy(const QHttpServerRequest& request) const
{
    Request out;
    out.method = methodName(request.method());
    out.path = request.url().path(QUrl::FullyDecoded);
    out.rawQuery = request.url().query(QUrl::FullyEncoded);
    out.query = QUrlQuery(request.url().query(QUrl::FullyEncoded));
    out.headers = request.headers();
    out.body = request.body();
    const QByteArray host = out.header("host");
    out.origin = host.isEmpty() ? QStringLiteral("http://127.0.0.1:%1").arg(m_port)
                                : QStringLiteral("http://") + QString::fromLatin1(host);
    return out;
}

bool Server::handleRequest(const QHttpServerRequest& request, QTcpSocket* socket)
{
    const Request copied = copy(request);
    if (isDevPath(copied.path)) {
        write(socket, copied, m_router.dispatch(copied));
        return true;
    }
    m_log.record(copied);
    const auto fault = m_faults.find(copied.method, copied.path);
    if (!fault) {
        answer(socket, copied);
    } else if (fault->mode == Fault::Mode::Slow) {
        QTimer::singleShot(qRound(fault->delay * 1000), this,
                           [this, guard = QPointer<QTcpSocket>(socket), copied] {
                               if (guard)
                                   answer(guard, copied);
                           });
    } else {
        write(socket, copied, fault->reply());
    }
    return true;
}

void Server::missingHandler(const QHttpServerRequest& request, QTcpSocket* socket)
{
    write(socket, copy(request),
          Reply::json({{QStringLiteral("ok"), false},
                       {QStringLiteral("error"), QStringLiteral("not_found")}},
                      404));
}

void Server::answer(QTcpSocket* socket, const Request& request)
{
    write(socket, request, m_router.dispatch(request));
}

void Server::write(QTcpSocket* socket, const Request& request, const Reply& reply)
{
    if (reply.drop) {
        socket->abort();
        return;
    }
    // HTTP/1.1 keeps the connection unless the client says "close"; HTTP/1.0 closes it unless
    // the client asks to keep it.
    const QByteArray connection = request.header("connection").trimmed().toLower();
    const bool keepAlive =
        Listener::speaksHttp10(socket) ? connection == "keep-alive" : !connection.contains("close");
    Listener::answered(socket);
    socket->write(reply.serialize(keepAlive));
    if (!keepAlive)
        socket->disconnectFromHost();
}

} // namespace vl
