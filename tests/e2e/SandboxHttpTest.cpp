#include "tests/support/SandboxProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <gtest/gtest.h>

using namespace vl::test;

namespace {

// The sandbox as a plain HTTP client sees it, byte by byte on one connection.
class SandboxHttpTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        socket.connectToHost(QStringLiteral("127.0.0.1"), sandbox.port());
        ASSERT_TRUE(socket.waitForConnected(5000));
    }

    // Sends raw bytes and reads one whole answer: its head and its body.
    std::pair<QByteArray, QByteArray> exchange(const QByteArray& request)
    {
        socket.write(request);
        QByteArray got;
        while (!got.contains("\r\n\r\n") && socket.waitForReadyRead(5000))
            got += socket.readAll();
        const qsizetype split = got.indexOf("\r\n\r\n");
        const QByteArray head = got.left(split);
        const qsizetype at = head.toLower().indexOf("content-length: ");
        const qsizetype length = head.mid(at + 16, head.indexOf("\r\n", at) - at - 16).toLongLong();
        QByteArray body = got.mid(split + 4);
        while (body.size() < length && socket.waitForReadyRead(5000))
            body += socket.readAll();
        return {head, body};
    }

    bool closedByPeer()
    {
        if (socket.state() != QAbstractSocket::UnconnectedState)
            socket.waitForDisconnected(3000);
        return socket.state() == QAbstractSocket::UnconnectedState;
    }

    QJsonObject post(const char* path, const QByteArray& json)
    {
        const auto [head, body] =
            exchange(QByteArray("POST ") + path +
                     " HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Type: application/json\r\n"
                     "Content-Length: " +
                     QByteArray::number(json.size()) + "\r\n\r\n" + json);
        return QJsonDocument::fromJson(body).object();
    }

    SandboxProcess sandbox;
    QTcpSocket socket;
};

const QByteArray config = "GET /api/app/v1/config HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";

} // namespace

TEST_F(SandboxHttpTest, KeepsAnHttp11ConnectionUntilTheClientSaysClose)
{
    for (int round = 0; round < 3; ++round) {
        const auto [head, body] = exchange(config);
        EXPECT_TRUE(head.startsWith("HTTP/1.1 200")) << head.toStdString();
        EXPECT_TRUE(head.contains("Connection: keep-alive"));
        EXPECT_FALSE(body.isEmpty());
    }
    const auto [head, body] =
        exchange("GET /api/app/v1/config HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n");
    EXPECT_TRUE(head.contains("Connection: close"));
    EXPECT_TRUE(closedByPeer());
}

TEST_F(SandboxHttpTest, AnHttp10ClientReadsToTheEndUnlessItAsksToKeepTheConnection)
{
    const auto [kept, keptBody] = exchange(
        "GET /api/app/v1/config HTTP/1.0\r\nHost: 127.0.0.1\r\nConnection: keep-alive\r\n\r\n");
    EXPECT_TRUE(kept.contains("Connection: keep-alive"));
    const auto [head, body] =
        exchange("GET /api/app/v1/config HTTP/1.0\r\nHost: 127.0.0.1\r\n\r\n");
    EXPECT_TRUE(head.contains("Connection: close"));
    EXPECT_TRUE(closedByPeer());
}

TEST_F(SandboxHttpTest, ABodyPastThirtyTwoMebibytesIsRefusedBeforeItIsRead)
{
    const auto [declared, declaredBody] =
        exchange("POST /api/app/v1/auth/request HTTP/1.1\r\nHost: 127.0.0.1\r\n"
                 "Content-Type: application/json\r\nContent-Length: 33554433\r\n\r\n{");
    EXPECT_TRUE(declared.startsWith("HTTP/1.1 413")) << declared.toStdString();
    EXPECT_TRUE(closedByPeer());

    // Chunks that never end are counted as they come.
    QTcpSocket chunked;
    chunked.connectToHost(QStringLiteral("127.0.0.1"), sandbox.port());
    ASSERT_TRUE(chunked.waitForConnected(5000));
    chunked.write("POST /api/app/v1/auth/request HTTP/1.1\r\nHost: 127.0.0.1\r\n"
                  "Transfer-Encoding: chunked\r\n\r\n");
    const QByteArray chunk = "100000\r\n" + QByteArray(0x100000, 'a') + "\r\n";
    QByteArray answer;
    for (int sent = 0; sent < 40 && chunked.state() == QAbstractSocket::ConnectedState; ++sent) {
        chunked.write(chunk);
        chunked.waitForBytesWritten(5000);
        if (chunked.waitForReadyRead(10))
            answer += chunked.readAll();
    }
    while (chunked.waitForReadyRead(2000))
        answer += chunked.readAll();
    answer += chunked.readAll();
    EXPECT_TRUE(answer.startsWith("HTTP/1.1 413")) << answer.left(80).toStdString();
}

TEST_F(SandboxHttpTest, RefusesWhatItCouldNotHonour)
{
    // A delay no test could wait for, or not a number at all.
    for (const char* delay : {"-1", "1e12", "601"})
        EXPECT_EQ(
            post("/dev/fault",
                 QByteArray(R"({"method":"GET","path":"/x","mode":"slow","delay":)") + delay + "}"),
            (QJsonObject{{"ok", false}, {"error", "delay"}}))
            << delay;
    EXPECT_EQ(post("/dev/fault", R"({"method":"GET","path":"/x","mode":"slow","delay":600})"),
              (QJsonObject{{"ok", true}, {"data", QJsonObject{}}}));

    // A code request without a language mails nothing.
    EXPECT_EQ(post("/api/app/v1/auth/request", R"({"email":"hr@tonispuri.ge"})"),
              (QJsonObject{{"ok", false}, {"error", "required"}}));
    EXPECT_TRUE(sandbox.lastCode(QStringLiteral("hr@tonispuri.ge")).isEmpty());
}

TEST_F(SandboxHttpTest, EmploymentTypesUseTheKeysTheClientSends)
{
    const auto [head, body] = exchange(config);
    QStringList keys;
    const QJsonArray types =
        QJsonDocument::fromJson(body)
            .object()[QStringLiteral("data")][QStringLiteral("employmentTypes")]
            .toArray();
    for (const QJsonValue& type : types)
        keys << type[QStringLiteral("key")].toString();
    EXPECT_TRUE(keys.contains(QStringLiteral("full"))) << keys.join(u' ').toStdString();
    EXPECT_TRUE(keys.contains(QStringLiteral("part")));

    const auto [jobsHead, jobs] =
        exchange("GET /api/app/v1/jobs?kind=vacancy&locale=en&type=part HTTP/1.1\r\n"
                 "Host: 127.0.0.1\r\nx-vl-client: ios\r\n\r\n");
    const QJsonArray items =
        QJsonDocument::fromJson(jobs).object()[QStringLiteral("data")].toArray();
    ASSERT_FALSE(items.isEmpty()) << jobs.left(200).toStdString();
    for (const QJsonValue& item : items)
        EXPECT_EQ(item[QStringLiteral("employmentType")], QStringLiteral("part"));
}
