#include "tests/support/HostileServer.h"

#include <QTest>
#include <QTimer>

namespace vl::test {

QByteArray okAnswer(const QByteArray& body, const QByteArray& fields)
{
    return "HTTP/1.1 200 OK\r\n" + fields + "Content-Length: " + QByteArray::number(body.size()) +
           "\r\n\r\n" + body;
}

HostileServer::HostileServer()
{
    connect(&m_server, &QTcpServer::pendingConnectionAvailable, this, &HostileServer::accept);
    m_server.listen(QHostAddress::LocalHost, 0);
}

QUrl HostileServer::url(const QString& path) const
{
    return QUrl(origin() + path);
}

QString HostileServer::origin() const
{
    return QStringLiteral("http://127.0.0.1:") + QString::number(port());
}

bool HostileServer::waitForRequests(qsizetype count, int timeoutMs)
{
    return QTest::qWaitFor([&] { return requests.size() >= count; }, timeoutMs);
}

void HostileServer::accept()
{
    while (m_server.hasPendingConnections()) {
        QTcpSocket* socket = m_server.nextPendingConnection();
        ++connections;
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QObject::destroyed, this, [this, socket] { m_inboxes.remove(socket); });
        read(socket);
    }
}

void HostileServer::read(QTcpSocket* socket)
{
    QByteArray& inbox = m_inboxes[socket];
    inbox += socket->readAll();
    for (;;) {
        const qsizetype headEnd = inbox.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return;
        qsizetype length = 0;
        for (const QByteArray& line : inbox.left(headEnd).split('\n')) {
            if (line.toLower().startsWith("content-length:"))
                length = line.mid(15).trimmed().toLongLong();
        }
        const qsizetype total = headEnd + 4 + length;
        if (inbox.size() < total)
            return;
        const QByteArray request = inbox.left(total);
        requests.append(request);
        inbox.remove(0, total);
        respond(socket, answerFor(request), 0);
    }
}

Answer HostileServer::answerFor(const QByteArray& request)
{
    const QByteArray path = request.left(request.indexOf('\r')).split(' ').value(1);
    if (m_served.contains(path))
        return m_served.value(path);
    if (m_answers.isEmpty())
        return Answer::with("HTTP/1.1 500 Unscripted\r\nContent-Length: 0\r\n\r\n");
    return m_answers.takeFirst();
}

void HostileServer::respond(QPointer<QTcpSocket> socket, Answer answer, qsizetype index)
{
    if (!socket)
        return;
    if (index < answer.pieces.size()) {
        write(socket, answer.pieces[index]);
        if (answer.gapMs > 0 && index + 1 < answer.pieces.size()) {
            QTimer::singleShot(answer.gapMs, this,
                               [=, this] { respond(socket, answer, index + 1); });
            return;
        }
        respond(socket, answer, index + 1);
        return;
    }
    if (answer.then == Answer::Then::Close)
        socket->disconnectFromHost();
    else if (answer.then == Answer::Then::Repeat)
        keepWriting(socket, answer.repeat, answer.gapMs);
}

// Writes as fast as the client reads, or one piece per gap, until the client goes away.
void HostileServer::keepWriting(QPointer<QTcpSocket> socket, QByteArray repeat, int gapMs)
{
    if (!socket || socket->state() != QAbstractSocket::ConnectedState)
        return;
    if (socket->bytesToWrite() < 4 * repeat.size() + 65536)
        write(socket, repeat);
    QTimer::singleShot(gapMs, this, [=, this] { keepWriting(socket, repeat, gapMs); });
}

void HostileServer::write(QTcpSocket* socket, const QByteArray& bytes)
{
    written += bytes.size();
    socket->write(bytes);
}

} // namespace vl::test
