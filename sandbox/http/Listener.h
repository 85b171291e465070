#pragma once

#include <QTcpServer>

class QTcpSocket;

namespace vl {

// The sandbox's listening socket. It sees each request's bytes before the HTTP server reads
// them, for what QtHttpServer 6.4 does not tell or bound: the request's protocol version, and
// the size of its body. A request whose body grows past `largestBody` is answered 413 and its
// connection closed before the body is kept anywhere.
class Listener final : public QTcpServer {
    Q_OBJECT
public:
    static constexpr qint64 largestBody = 32 * 1024 * 1024;

    using QTcpServer::QTcpServer;

    // Whether the request being answered on this socket came as HTTP/1.0.
    static bool speaksHttp10(const QTcpSocket* socket);
    // The request on this socket is answered: the next bytes start a new one.
    static void answered(QTcpSocket* socket);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    static void inspect(QTcpSocket* socket);
    static void refuse(QTcpSocket* socket);
};

} // namespace vl
