#pragma once

#include "sandbox/http/Reply.h"
#include "sandbox/http/Request.h"

#include <QAbstractHttpServer>

namespace vl {

class FaultTable;
class RequestLog;
class Router;

// The HTTP front: turns each request into a `Request`, records it, applies a fault when one is
// set for it, routes it, and writes the answer itself on the socket. Writing the bytes directly
// (rather than through a responder) lets an answer come late, or never, and lets the sandbox
// keep or close each connection as HTTP/1.1 and HTTP/1.0 say: QtHttpServer 6.4 neither exposes
// the request's protocol version nor closes a connection by itself, so its own listener (see
// Listener) tells the version and bounds the body.
class Server : public QAbstractHttpServer {
public:
    Server(const Router& router, RequestLog& log, FaultTable& faults, QObject* parent = nullptr);

    // Listens on loopback; 0 picks a free port. Returns the port, or 0 on failure.
    quint16 start(quint16 port);

protected:
    bool handleRequest(const QHttpServerRequest& request, QTcpSocket* socket) override;
    void missingHandler(const QHttpServerRequest& request, QTcpSocket* socket) override;

private:
    Request copy(const QHttpServerRequest& request) const;
    void answer(QTcpSocket* socket, const Request& request);
    static void write(QTcpSocket* socket, const Request& request, const Reply& reply);

    const Router& m_router;
    RequestLog& m_log;
    FaultTable& m_faults;
    quint16 m_port = 0;
};

} // namespace vl
