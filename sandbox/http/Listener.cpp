#include "sandbox/http/Listener.h"

#include "sandbox/http/Reply.h"

#include <QTcpSocket>

namespace vl {

namespace {

// Per-socket state, kept on the socket so that it dies with it.
constexpr const char* http10Property = "vl.http10";
constexpr const char* inRequestProperty = "vl.inRequest";
constexpr const char* receivedProperty = "vl.received";
constexpr const char* refusedProperty = "vl.refused";

// Room for the request line and the headers on top of the largest body.
constexpr qint64 headRoom = 64 * 1024;

std::optional<qint64> contentLength(const QByteArray& head)
{
    const QByteArray lower = head.toLower();
    const qsizetype at = lower.indexOf("\r\ncontent-length:");
    if (at < 0)
        return std::nullopt;
    const qsizetype from = at + qsizetype(sizeof("\r\ncontent-length:") - 1);
    const qsizetype end = lower.indexOf("\r\n", from);
    bool ok = false;
    const qint64 length = lower.mid(from, end < 0 ? -1 : end - from).trimmed().toLongLong(&ok);
    return ok ? std::optional(length) : std::nullopt;
}

} // namespace

bool Listener::speaksHttp10(const QTcpSocket* socket)
{
    return socket->property(http10Property).toBool();
}

void Listener::answered(QTcpSocket* socket)
{
    socket->setProperty(inRequestProperty, false);
    socket->setProperty(receivedProperty, qint64(0));
}

void Listener::incomingConnection(qintptr descriptor)
{
    auto* socket = new QTcpSocket(this);
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        return;
    }
    // Connected before the HTTP server connects its own reader, so this one runs first.
    connect(socket, &QTcpSocket::readyRead, socket, [socket] { inspect(socket); });
    addPendingConnection(socket);
}

void Listener::inspect(QTcpSocket* socket)
{
    if (socket->property(refusedProperty).toBool()) {
        socket->readAll();
        return;
    }
    const QByteArray head = socket->peek(socket->bytesAvailable());
    if (!socket->property(inRequestProperty).toBool()) {
        const QByteArray line = head.left(head.indexOf("\r\n"));
        socket->setProperty(inRequestProperty, true);
        socket->setProperty(http10Property, line.endsWith(" HTTP/1.0"));
        socket->setProperty(receivedProperty, qint64(0));
        if (head.toLower().contains("\r\nupgrade: websocket")) {
            // From here on the socket carries frames, not requests.
            disconnect(socket, &QTcpSocket::readyRead, socket, nullptr);
            return;
        }
        const auto declared = contentLength(head);
        if (declared && *declared > largestBody) {
            refuse(socket);
            return;
        }
    }
    const qint64 received = socket->property(receivedProperty).toLongLong() + head.size();
    socket->setProperty(receivedProperty, received);
    if (received > largestBody + headRoom)
        refuse(socket);
}

void Listener::refuse(QTcpSocket* socket)
{
    socket->setProperty(refusedProperty, true);
    socket->readAll();
    socket->write(Reply::json({{QStringLiteral("ok"), false},
                               {QStringLiteral("error"), QStringLiteral("too_large")}},
                              413)
                      .serialize(false));
    socket->disconnectFromHost();
}

} // namespace vl
