#include "tests/support/SandboxProcess.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTcpSocket>

namespace vl::test {

namespace {

// A minimal blocking HTTP/1.0 exchange over loopback, so that test scaffolding does not depend on
// the client's own transport under test.
QByteArray rawExchange(quint16 port, const QByteArray& method, const QString& path,
                       const QByteArray& body)
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), port);
    if (!socket.waitForConnected(5000))
        return {};
    QByteArray request = method + ' ' + path.toUtf8() + " HTTP/1.0\r\nHost: 127.0.0.1\r\n";
    if (!body.isEmpty())
        request +=
            "Content-Type: application/json\r\nContent-Length: " + QByteArray::number(body.size()) +
            "\r\n";
    request += "\r\n" + body;
    socket.write(request);
    QByteArray answer;
    const QDeadlineTimer deadline(10000);
    while (socket.state() == QAbstractSocket::ConnectedState && !deadline.hasExpired()) {
        socket.waitForReadyRead(100);
        answer += socket.readAll();
    }
    answer += socket.readAll();
    return answer;
}

QByteArray exchange(quint16 port, const QByteArray& method, const QString& path,
                    const QByteArray& body)
{
    const QByteArray answer = rawExchange(port, method, path, body);
    const auto split = answer.indexOf("\r\n\r\n");
    return split < 0 ? QByteArray() : answer.mid(split + 4);
}

} // namespace

SandboxProcess::SandboxProcess(QStringList extraArgs)
{
    QStringList args{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--db"),
                     QStringLiteral(":memory:")};
    args += extraArgs;
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(QStringLiteral(VELMORA_SANDBOX_PATH), args);
    if (!m_process.waitForStarted(10000))
        return;
    static const QRegularExpression listening(QStringLiteral("listening on http://[^:]+:(\\d+)"));
    const QDeadlineTimer deadline(20000);
    while (!deadline.hasExpired() && m_process.state() == QProcess::Running) {
        m_process.waitForReadyRead(100);
        m_seen += m_process.readAllStandardOutput();
        const auto match = listening.match(QString::fromUtf8(m_seen));
        if (match.hasMatch()) {
            m_port = match.captured(1).toUShort();
            break;
        }
    }
}

SandboxProcess::~SandboxProcess()
{
    m_process.terminate();
    if (!m_process.waitForFinished(3000))
        m_process.kill();
    m_process.waitForFinished(3000);
}

QString SandboxProcess::site() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_port);
}

QJsonValue SandboxProcess::devGet(const QString& path) const
{
    const auto body = exchange(m_port, "GET", path, {});
    return QJsonDocument::fromJson(body).object().value(QStringLiteral("data"));
}

QJsonValue SandboxProcess::devPost(const QString& path, const QByteArray& json) const
{
    const auto body = exchange(m_port, "POST", path, json.isEmpty() ? QByteArray("{}") : json);
    return QJsonDocument::fromJson(body).object().value(QStringLiteral("data"));
}

QString SandboxProcess::lastMailBody(const QString& to) const
{
    const auto mails = devGet(QStringLiteral("/dev/outbox")).toArray();
    for (const auto& mail : mails) {
        const auto object = mail.toObject();
        if (object.value(QStringLiteral("to")).toString().compare(to, Qt::CaseInsensitive) == 0)
            return object.value(QStringLiteral("body")).toString();
    }
    return {};
}

QString SandboxProcess::lastCode(const QString& to) const
{
    static const QRegularExpression sixDigits(QStringLiteral("\\b(\\d{6})\\b"));
    return sixDigits.match(lastMailBody(to)).captured(1);
}

QUrl SandboxProcess::oauthCallback(const QString& email) const
{
    const QByteArray answer =
        rawExchange(m_port, "GET",
                    QStringLiteral("/api/candidate/oauth/pick?app=1&hl=en&email=") +
                        QString::fromLatin1(QUrl::toPercentEncoding(email)),
                    {});
    static const QRegularExpression location(QStringLiteral("(?im)^location:\\s*(\\S+)"));
    return QUrl(location.match(QString::fromLatin1(answer)).captured(1));
}

QString SandboxProcess::output()
{
    m_seen += m_process.readAllStandardOutput();
    return QString::fromUtf8(m_seen + m_process.readAllStandardError());
}

} // namespace vl::test
