#include "app/service/APIClient.h"

#include "app/service/NetworkSession.h"
#include "core/service/MultipartForm.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <QUrlQuery>
#include <gtest/gtest.h>

using namespace vl;
using vl::test::wait;

namespace {

class APIClientTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString(); }

    void fault(const char* method, const QString& path, QJsonObject body)
    {
        body.insert(QStringLiteral("method"), QLatin1StringView(method));
        body.insert(QStringLiteral("path"), path);
        sandbox.devPost(QStringLiteral("/dev/fault"), QJsonDocument(body).toJson());
    }

    // The newest request the sandbox received, as it recorded it.
    QJsonObject lastRequest() const
    {
        return sandbox.devGet(QStringLiteral("/dev/requests")).toArray().first().toObject();
    }

    static QStringList headerNames(const QJsonObject& request)
    {
        QStringList names;
        for (const auto& header : request.value(QStringLiteral("headers")).toArray())
            names << header.toArray().first().toString().toLower();
        return names;
    }

    // Qt's HTTP stack adds these to every request itself: the platform's, not the client's.
    static QStringList platformHeaders()
    {
        return {QStringLiteral("host"), QStringLiteral("connection"),
                QStringLiteral("accept-encoding"), QStringLiteral("accept-language"),
                QStringLiteral("user-agent")};
    }

    static QStringList sorted(QStringList names)
    {
        names.sort();
        return names;
    }

    static QString header(const QJsonObject& request, const QString& name)
    {
        for (const auto& header : request.value(QStringLiteral("headers")).toArray()) {
            if (header.toArray().first().toString().compare(name, Qt::CaseInsensitive) == 0)
                return header.toArray().last().toString();
        }
        return {};
    }

    static QByteArray body(const QJsonObject& request)
    {
        return QByteArray::fromBase64(request.value(QStringLiteral("body")).toString().toLatin1());
    }

    test::SandboxProcess sandbox;
    std::unique_ptr<QNetworkAccessManager> session = makeNetworkSession();
    std::optional<QString> token;
    APIClient api{session.get(), sandbox.site(), [this] { return token; }};
};

} // namespace

TEST_F(APIClientTest, ReadsTheTaxonomyAndSendsOnlyItsOwnHeaders)
{
    const auto config = wait(api.config(nullptr));
    ASSERT_TRUE(config);
    EXPECT_GE(config->categories.size(), 10u);
    EXPECT_EQ(config->locales, (std::vector<QString>{QStringLiteral("ka"), QStringLiteral("en"),
                                                     QStringLiteral("ru")}));

    const QJsonObject request = lastRequest();
    EXPECT_EQ(request.value(QStringLiteral("path")).toString(),
              QStringLiteral("/api/app/v1/config"));
    EXPECT_EQ(sorted(headerNames(request)), sorted(platformHeaders()));
    EXPECT_EQ(header(request, QStringLiteral("User-Agent")), QStringLiteral("Mozilla/5.0"));
}

TEST_F(APIClientTest, WritesCarryTheClientTagOriginTokenAndExactBody)
{
    token = QStringLiteral("t0k");
    wait(api.authLogout(QStringLiteral("push"), QString(), nullptr));
    const QJsonObject request = lastRequest();
    EXPECT_EQ(request.value(QStringLiteral("method")).toString(), QStringLiteral("POST"));
    EXPECT_EQ(header(request, QStringLiteral("x-vl-client")), QStringLiteral("ios"));
    EXPECT_EQ(header(request, QStringLiteral("Origin")), sandbox.site());
    EXPECT_EQ(header(request, QStringLiteral("Authorization")), QStringLiteral("Bearer t0k"));
    EXPECT_EQ(header(request, QStringLiteral("Content-Type")), QStringLiteral("application/json"));
    EXPECT_EQ(body(request), QByteArray(R"({"pushToken":"push","voipToken":""})"));
    EXPECT_EQ(sorted(headerNames(request)),
              sorted(platformHeaders() +
                     QStringList{QStringLiteral("x-vl-client"), QStringLiteral("origin"),
                                 QStringLiteral("authorization"), QStringLiteral("content-type"),
                                 QStringLiteral("content-length")}));
}

TEST_F(APIClientTest, MultipartBodiesArriveByteForByte)
{
    MultipartForm form;
    form.text(QStringLiteral("key"), QStringLiteral("k1"));
    static const char pdf[] = "%PDF-1.4\x00\xff";
    form.file(QStringLiteral("cv"), QStringLiteral("a\"b\r\n.pdf"),
              QStringLiteral("application/pdf"), QByteArray(pdf, sizeof(pdf) - 1));
    wait(api.call<Nothing>({.shape = APIClient::Shape::multipartWrite,
                            .path = QStringLiteral("fit/check"),
                            .body = form.body(),
                            .contentType = form.contentType()},
                           nullptr));
    const QJsonObject request = lastRequest();
    EXPECT_EQ(header(request, QStringLiteral("Content-Type")),
              QStringLiteral("multipart/form-data; boundary=") + form.boundary());
    EXPECT_EQ(body(request), form.body());
    EXPECT_TRUE(body(request).contains("filename=\"a'b.pdf\""));
}

TEST_F(APIClientTest, FaultsBecomeTheirErrors)
{
    const QString config = QStringLiteral("/api/app/v1/config");
    fault("GET", config,
          {{"mode", "status"}, {"status", 500}, {"body", "envelope"}, {"code", "rate"}});
    EXPECT_EQ(wait(api.config(nullptr)).error(), APIError::server(QStringLiteral("rate")));

    fault("GET", config, {{"mode", "html"}});
    EXPECT_EQ(wait(api.config(nullptr)).error(), APIError::http(200));

    fault("GET", config, {{"mode", "status"}, {"status", 200}, {"body", "ok"}});
    EXPECT_EQ(wait(api.config(nullptr)).error(), APIError::server(QStringLiteral("generic")));

    fault("GET", config, {{"mode", "status"}, {"status", 413}, {"body", "html"}});
    EXPECT_EQ(wait(api.config(nullptr)).error(), APIError::http(413));

    fault("GET", config, {{"mode", "drop"}});
    EXPECT_EQ(wait(api.config(nullptr)).error(), APIError::network());

    fault("GET", config, {{"mode", "none"}});
    EXPECT_TRUE(wait(api.config(nullptr)));
}

TEST_F(APIClientTest, AnOversizedChatSendIsARefusalOfSize)
{
    fault("POST", QStringLiteral("/api/app/v1/applications/7"),
          {{"mode", "status"}, {"status", 413}, {"body", "html"}});
    const auto sent = wait(api.chatSend<Nothing>({.shape = APIClient::Shape::jsonWrite,
                                                  .path = QStringLiteral("applications/7"),
                                                  .body = R"({"action":"reply","message":"hi"})",
                                                  .contentType = "application/json"},
                                                 nullptr));
    ASSERT_TRUE(sent); // the transport worked; the service refused
    ASSERT_FALSE(sent.value());
    EXPECT_EQ(sent.value().error(), (ChatRefusal{QStringLiteral("size"), std::nullopt, 413}));
}

TEST_F(APIClientTest, SlowAnswersPastTheTimeOutAndGoneOwnersEndAsNetwork)
{
    fault("GET", QStringLiteral("/api/app/v1/config"), {{"mode", "slow"}, {"delay", 3}});
    const auto slow = wait(
        api.call<ConfigPayload>({.path = QStringLiteral("config"), .timeoutMs = 300}, nullptr));
    EXPECT_EQ(slow.error(), APIError::network());

    auto owner = std::make_unique<QObject>();
    auto pending = api.config(owner.get());
    QTimer::singleShot(100, [&owner] { owner.reset(); });
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(wait(std::move(pending)).error(), APIError::network());
    EXPECT_LT(clock.elapsed(), 2000);
}

TEST_F(APIClientTest, QueryValuesTravelAsTyped)
{
    const QUrl url =
        api.url(QStringLiteral("jobs"), {{QStringLiteral("q"), QStringLiteral("C++ & a=b ბარისტა")},
                                         {QStringLiteral("page"), QStringLiteral("2")}});
    EXPECT_EQ(url.path(), QStringLiteral("/api/app/v1/jobs"));
    const QUrlQuery query(url);
    EXPECT_EQ(query.queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded),
              QStringLiteral("C++ & a=b ბარისტა"));
    EXPECT_EQ(query.queryItemValue(QStringLiteral("page")), QStringLiteral("2"));
    EXPECT_FALSE(api.url(QStringLiteral("config")).hasQuery());
}

TEST_F(APIClientTest, APathKeepsItsSlashesAndNothingElseLeavesIt)
{
    const QUrl nested = api.url(QStringLiteral("jobs/VL1/forms"));
    EXPECT_EQ(nested.path(), QStringLiteral("/api/app/v1/jobs/VL1/forms"));
    // A value with "?" or "#" stays in the path instead of starting a query or a fragment.
    const QUrl odd = api.url(QStringLiteral("company/a b?c#d%e"));
    EXPECT_EQ(odd.path(), QStringLiteral("/api/app/v1/company/a b?c#d%e"));
    EXPECT_FALSE(odd.hasQuery());
    EXPECT_FALSE(odd.hasFragment());
    EXPECT_EQ(api.url(QStringLiteral("/api/candidate/logout")).path(),
              QStringLiteral("/api/candidate/logout"));
}
