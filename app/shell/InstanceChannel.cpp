#include "app/shell/InstanceChannel.h"

#include "core/navigation/HandOverReader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <memory>

namespace vl {

namespace {

constexpr int handOverTimeoutMs = 1000;

} // namespace

InstanceChannel::InstanceChannel(const QString& site, QObject* parent)
    : QObject(parent)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QByteArray digest =
        QCryptographicHash::hash(site.toUtf8(), QCryptographicHash::Sha256).toHex().left(12);
    m_path = folder + QStringLiteral("/velmora-") + QString::fromLatin1(digest) +
             QStringLiteral(".sock");
}

bool InstanceChannel::handOver(const QString& link) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(handOverTimeoutMs))
        return false;
    socket.write(link.toUtf8() + '\n');
    if (!socket.waitForBytesWritten(handOverTimeoutMs))
        return false;
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(handOverTimeoutMs);
    return true;
}

bool InstanceChannel::listen()
{
    // Nobody answered handOver, so a socket file left here belongs to a client that crashed.
    QLocalServer::removeServer(m_path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            auto reader = std::make_shared<HandOverReader>();
            connect(socket, &QLocalSocket::readyRead, this, [this, socket, reader] {
                const QStringList links = reader->feed(socket->readAll());
                for (const QString& link : links)
                    Q_EMIT linkReceived(link);
                if (reader->overflowed())
                    socket->abort();
            });
        }
    });
    return m_server->listen(m_path);
}

} // namespace vl
