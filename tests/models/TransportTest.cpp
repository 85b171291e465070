#include "app/platform/PendingWrites.h"
#include "app/service/APIClient.h"
#include "app/service/CookieVault.h"
#include "app/service/NetworkSession.h"
#include "app/service/SessionCookieJar.h"
#include "tests/support/Fakes.h"
#include "tests/support/HostileServer.h"
#include "tests/support/TestContext.h"
#include "tests/support/TlsServer.h"

#include <QElapsedTimer>
#include <QNetworkCookie>
#include <QNetworkDiskCache>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

using namespace vl;
using vl::test::Answer;
using vl::test::HostileServer;
using vl::test::okAnswer;
using vl::test::wait;

namespace {

const QByteArray done = R"({"ok":true,"data":{}})";

// The client's session with its own disk cache and jar, pointed at a hostile server.
class TransportTest : public testing::Test {
protected:
    TransportTest()
    {
        auto* disk = new QNetworkDiskCache(session.get());
        disk->setCacheDirectory(cacheDir.path());
        session->setCache(disk);
        session->setCookieJar(jar);
    }

    Result<Nothing> call(APIClient::Shape shape, const QString& path, int timeoutMs = 60000)
    {
        return wait(api.call<Nothing>({.shape = shape,
                                       .path = path,
                                       .body = shape == APIClient::Shape::jsonWrite ? "{}" : "",
                                       .contentType = shape == APIClient::Shape::jsonWrite
                                                          ? QByteArray("application/json")
                                                          : QByteArray(),
                                       .timeoutMs = timeoutMs},
                                      nullptr));
    }
    Result<Nothing> get(const QString& path, int timeoutMs = 60000)
    {
        return call(APIClient::Shape::plainRead, path, timeoutMs);
    }

    bool cached(const QString& path) const
    {
        return session->cache()->metaData(api.url(path)).isValid();
    }

    HostileServer server;
    QTemporaryDir cacheDir;
    std::unique_ptr<NetworkSession> session = std::make_unique<NetworkSession>();
    SessionCookieJar* jar = new SessionCookieJar(session.get());
    std::optional<QString> token;
    APIClient api{session.get(), server.origin(), [this] { return token; }};
};

// The error of a call that should have failed; a success reads as an unexpected "success" code.
APIError failure(const Result<Nothing>& result)
{
    return result ? APIError::server(QStringLiteral("success")) : result.error();
}

qint64 elapsedFor(const std::function<void()>& run)
{
    QElapsedTimer clock;
    clock.start();
    run();
    return clock.elapsed();
}

} // namespace

TEST_F(TransportTest, AWriteIsNeverSentTwice)
{
    // A read opens a keep-alive connection; the server reads the next request on it and hangs
    // up. A request sent again would meet the unscripted 500.
    const auto dropNext = [&](APIClient::Shape shape, const QString& path) {
        server.script(Answer::with(okAnswer(done)));
        EXPECT_TRUE(get(QStringLiteral("warm")));
        server.script(Answer::hangUp());
        const qsizetype before = server.requests.size();
        const APIError error = failure(call(shape, path));
        QTest::qWait(300);
        EXPECT_EQ(server.requests.size(), before + 1) << path.toStdString();
        return error;
    };
    EXPECT_EQ(dropNext(APIClient::Shape::jsonWrite, QStringLiteral("post")), APIError::network());
    EXPECT_TRUE(server.requests.last().startsWith("POST /api/app/v1/post "));
    EXPECT_TRUE(server.requests.last().endsWith("\r\n\r\n{}"));
    EXPECT_EQ(dropNext(APIClient::Shape::deleteCall, QStringLiteral("gone")), APIError::network());
    EXPECT_TRUE(server.requests.last().startsWith("DELETE /api/app/v1/gone "));

    // The same drop on a read is Qt's to repair: it asks again on a new connection.
    server.script(Answer::with(okAnswer(done)));
    EXPECT_TRUE(get(QStringLiteral("warm")));
    server.script(Answer::hangUp());
    server.script(Answer::with(okAnswer(done)));
    EXPECT_TRUE(get(QStringLiteral("again")));
    EXPECT_EQ(server.requests.size(), 7);
}

TEST_F(TransportTest, AnAnswerIsBoundedInSize)
{
    const QByteArray chunk = "100000\r\n" + QByteArray(0x100000, 'x') + "\r\n";
    server.script(
        Answer::endless("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", chunk, 0));
    EXPECT_EQ(failure(get(QStringLiteral("endless"))), APIError::network());
    // Loopback and socket buffers hold some more in flight, and Qt's HTTP thread reads ahead of
    // a busy main thread; an unbounded read would pass this many times over before the deadline.
    EXPECT_LT(server.written, 4 * NetworkSession::answerLimit);

    const qint64 before = server.written;
    server.script(Answer::endless("HTTP/1.1 200 OK\r\nContent-Length: 10000000000\r\n\r\n",
                                  QByteArray(0x10000, 'x'), 0));
    EXPECT_EQ(failure(get(QStringLiteral("huge"))), APIError::network());
    EXPECT_LT(server.written - before, NetworkSession::answerLimit / 4);

    server.script(Answer::with(okAnswer(done)));
    EXPECT_TRUE(get(QStringLiteral("small")));
}

TEST_F(TransportTest, AnAnswerIsBoundedInTotalTime)
{
    const QList<Answer> stalling{
        Answer::endless("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n", "x", 200),
        Answer::endless({}, "HTTP/1.1 100 Continue\r\n\r\n", 200),
    };
    for (const Answer& answer : stalling) {
        server.script(answer);
        const qint64 took = elapsedFor(
            [&] { EXPECT_EQ(failure(get(QStringLiteral("slow"), 1200)), APIError::network()); });
        EXPECT_GE(took, 1100);
        EXPECT_LT(took, 3000);
    }

    // Qt ends a chunked answer at its last chunk and never waits for the trailers.
    server.script(Answer::endless("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n15\r\n" +
                                      done + "\r\n0\r\n",
                                  "X-Trailer: 1\r\n", 200));
    EXPECT_LT(elapsedFor([&] { EXPECT_TRUE(get(QStringLiteral("trailers"), 1200)); }), 1000);
}

TEST_F(TransportTest, BrokenFramingIsNoAnswer)
{
    // Each answer stands at a path of its own: Qt may ask again for a read whose connection
    // closed, and a repeated read must meet the same answer, not the next one.
    int served = 0;
    const auto answerWith = [&](Answer answer) {
        const QString path = QStringLiteral("case%1").arg(++served);
        server.serve("/api/app/v1/" + path.toLatin1(), std::move(answer));
        return get(path);
    };
    const QList<QByteArray> broken{
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n" + done + "\r\n0\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + done,
        "HTTP/1.1 404 Not Found\r\nContent-Length: 100\r\n\r\n" + done,
    };
    for (const QByteArray& answer : broken)
        EXPECT_EQ(failure(answerWith(Answer::closing(answer))), APIError::network())
            << answer.data();

    // A compressed answer's length counts the bytes on the wire.
    const QByteArray deflated = qCompress(done).mid(4);
    EXPECT_TRUE(answerWith(Answer::with(okAnswer(deflated, "Content-Encoding: deflate\r\n"))));

    // Whole answers with an error status are still answers.
    EXPECT_EQ(
        failure(answerWith(Answer::with(
            "HTTP/1.1 500 Oops\r\nContent-Length: 29\r\n\r\n{\"ok\":false,\"error\":\"rate\"}  "))),
        APIError::server(QStringLiteral("rate")));
    EXPECT_EQ(failure(answerWith(
                  Answer::with("HTTP/1.1 404 Not Found\r\nContent-Length: 6\r\n\r\n<html>"))),
              APIError::http(404));
    EXPECT_EQ(
        failure(answerWith(Answer::with("HTTP/1.1 401 No\r\nContent-Length: 6\r\n\r\n<html>"))),
        APIError::http(401));
}

TEST_F(TransportTest, RedirectsCarryNoBodyOrCredentialToAnotherOrigin)
{
    HostileServer elsewhere;
    elsewhere.serve("/x", Answer::with(okAnswer(done)));
    // Each redirect closes its connection: what is under test is where Qt goes next, not a
    // read that Qt sends again when a reused connection turns out closed.
    const auto moved = [](const char* status, const QUrl& to) {
        return Answer::closing(QByteArray("HTTP/1.1 ") + status +
                               " Moved\r\nLocation: " + to.toEncoded() +
                               "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n");
    };
    const QUrl away = elsewhere.url(QStringLiteral("/x"));
    const QUrl home = server.url(QStringLiteral("/api/app/v1/there"));
    server.serve("/api/app/v1/there", Answer::with(okAnswer(done)));
    server.serve("/api/app/v1/post", moved("307", away));
    server.serve("/api/app/v1/me", moved("302", away));
    server.serve("/api/app/v1/post-home", moved("307", home));
    server.serve("/api/app/v1/me-home", moved("302", home));
    server.serve("/api/app/v1/public", moved("302", away));

    token = QStringLiteral("secret");
    jar->setCookiesFromUrl({QNetworkCookie("vl_cand", "s1")}, server.url(QStringLiteral("/")));
    EXPECT_EQ(failure(call(APIClient::Shape::jsonWrite, QStringLiteral("post"))),
              APIError::network());
    EXPECT_EQ(failure(call(APIClient::Shape::bearerRead, QStringLiteral("me"))),
              APIError::network());
    QTest::qWait(200);
    EXPECT_TRUE(elsewhere.requests.isEmpty());

    // At home, and for a read that carries nothing of ours, a redirect is followed.
    EXPECT_TRUE(call(APIClient::Shape::bearerRead, QStringLiteral("me-home")));
    EXPECT_TRUE(server.requests.last().startsWith("GET /api/app/v1/there "));
    // A write's body goes out once, so even at home a redirect that would repeat it fails.
    EXPECT_EQ(failure(call(APIClient::Shape::jsonWrite, QStringLiteral("post-home"))),
              APIError::network());
    EXPECT_EQ(std::count_if(server.requests.begin(), server.requests.end(),
                            [](const QByteArray& request) { return request.startsWith("POST "); }),
              2);

    jar->deleteCookie(jar->cookiesForUrl(server.url(QStringLiteral("/"))).first());
    token.reset();
    EXPECT_TRUE(get(QStringLiteral("public")));
    ASSERT_FALSE(elsewhere.requests.isEmpty());
    EXPECT_FALSE(elsewhere.requests.first().toLower().contains("authorization"));
}

TEST_F(TransportTest, CredentialedAnswersNeverReachTheDiskCache)
{
    const QByteArray keep = "Cache-Control: max-age=300\r\n";
    server.script(Answer::with(okAnswer(done, keep)));
    ASSERT_TRUE(get(QStringLiteral("public")));
    EXPECT_TRUE(cached(QStringLiteral("public")));
    EXPECT_TRUE(get(QStringLiteral("public"))); // from the cache
    EXPECT_EQ(server.requests.size(), 1);
    // A fresh read goes to the service as the caller built it, and its answer is kept.
    server.script(Answer::with(okAnswer(done, keep)));
    EXPECT_TRUE(
        wait(api.call<Nothing>({.path = QStringLiteral("public"), .fresh = true}, nullptr)));
    ASSERT_EQ(server.requests.size(), 2);
    EXPECT_FALSE(server.requests.last().toLower().contains("cache-control"));
    EXPECT_FALSE(server.requests.last().toLower().contains("pragma"));
    EXPECT_TRUE(cached(QStringLiteral("public")));

    token = QStringLiteral("secret");
    server.script(Answer::with(okAnswer(done, keep)));
    ASSERT_TRUE(call(APIClient::Shape::bearerRead, QStringLiteral("mine")));
    EXPECT_FALSE(cached(QStringLiteral("mine")));
    // Nor does an anonymous answer stand in for one asked with a credential.
    server.script(Answer::with(okAnswer(done)));
    ASSERT_TRUE(call(APIClient::Shape::bearerRead, QStringLiteral("public")));
    EXPECT_EQ(server.requests.size(), 4);

    token.reset();
    jar->setCookiesFromUrl({QNetworkCookie("vl_cand", "s1")}, server.url(QStringLiteral("/")));
    server.script(Answer::with(okAnswer(done, keep)));
    ASSERT_TRUE(get(QStringLiteral("seeker")));
    EXPECT_FALSE(cached(QStringLiteral("seeker")));
}

TEST(TransportSignOutTest, SigningOutOfEitherIdentityEmptiesTheCache)
{
    HostileServer server;
    auto context = test::makeContext({.site = server.origin()});
    const QString path = QStringLiteral("public");
    const auto fill = [&] {
        server.script(Answer::with(okAnswer(done, "Cache-Control: max-age=300\r\n")));
        EXPECT_TRUE(wait(context->api().call<Nothing>({.path = path}, nullptr)));
        return context->session().cache()->metaData(context->api().url(path)).isValid();
    };

    ASSERT_TRUE(fill());
    context->auth.clearSession();
    EXPECT_FALSE(context->session().cache()->metaData(context->api().url(path)).isValid());

    ASSERT_TRUE(fill());
    context->candidate.completeSignIn(QStringLiteral("seeker@example.com"));
    server.script(Answer::with(okAnswer(done)));
    wait(context->candidate.signOut());
    EXPECT_FALSE(context->session().cache()->metaData(context->api().url(path)).isValid());
}

TEST(TransportCookieTest, TheJarKeepsOnlyWhatABrowserWould)
{
    SessionCookieJar jar;
    const QUrl site(QStringLiteral("https://www.example.com/"));
    const auto took = [&](QNetworkCookie cookie) { return jar.setCookiesFromUrl({cookie}, site); };
    QNetworkCookie parent("p", "1");
    parent.setDomain(QStringLiteral(".example.com"));
    EXPECT_TRUE(took(parent));
    EXPECT_TRUE(took(QNetworkCookie("host", "1")));

    QNetworkCookie child("c", "1");
    child.setDomain(QStringLiteral("deep.www.example.com"));
    QNetworkCookie other("o", "1");
    other.setDomain(QStringLiteral(".elsewhere.com"));
    QNetworkCookie suffix("s", "1");
    suffix.setDomain(QStringLiteral(".com"));
    for (const QNetworkCookie& refused :
         {child, other, suffix, QNetworkCookie("cr", "a\rb"), QNetworkCookie("lf", "a\nb"),
          QNetworkCookie("big", QByteArray(5000, 'v')), QNetworkCookie("bad\r\nname", "1")})
        EXPECT_FALSE(took(refused)) << refused.toRawForm().data();

    QNetworkCookie byAddress("a", "1");
    byAddress.setDomain(QStringLiteral(".0.0.1"));
    EXPECT_FALSE(jar.setCookiesFromUrl({byAddress}, QUrl(QStringLiteral("http://127.0.0.1/"))));

    for (int i = 0; i < 80; ++i)
        took(QNetworkCookie("n" + QByteArray::number(i), "1"));
    EXPECT_EQ(jar.cookiesForUrl(QUrl(QStringLiteral("https://www.example.com/"))).size(),
              SessionCookieJar::perDomainLimit + 1); // the host's and the parent's
    for (int d = 0; d < 10; ++d) {
        const QUrl host(QStringLiteral("https://h%1.example.org/").arg(d));
        for (int i = 0; i < 40; ++i)
            jar.setCookiesFromUrl({QNetworkCookie("k" + QByteArray::number(i), "1")}, host);
    }
    qsizetype total = 0;
    for (int d = 0; d < 10; ++d)
        total += jar.cookiesForUrl(QUrl(QStringLiteral("https://h%1.example.org/").arg(d))).size();
    EXPECT_LE(total + SessionCookieJar::perDomainLimit + 1, SessionCookieJar::totalLimit);

    // A cookie already kept is replaced, never refused for want of room.
    EXPECT_TRUE(took(QNetworkCookie("n0", "2")));
}

TEST(TransportCookieTest, CookiesRestoredFromTheSecureStoreAreCheckedLikeAnAnswers)
{
    test::MemoryPreferences preferences;
    test::MemorySecretStore secrets(preferences);
    PendingWrites pending;
    QNetworkAccessManager session;
    const QString site = QStringLiteral("http://127.0.0.1:4321");
    secrets.items.insert(QString::fromLatin1(CookieVault::storeKey),
                         QStringLiteral("vl_cand=kept; path=/\n"
                                        "evil=1; domain=.elsewhere.com\n"
                                        "broken=a\rb\n"
                                        "=; ;;; \x01\x7f\n") +
                             QString(5000, QLatin1Char('x')) + QStringLiteral("=1\n"));
    CookieVault vault(secrets, pending, session, site);
    wait(vault.restore());
    const auto kept = session.cookieJar()->cookiesForUrl(QUrl(site));
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(kept.first().name(), "vl_cand");

    secrets.items.insert(QString::fromLatin1(CookieVault::storeKey),
                         QString(2 * 1024 * 1024, QLatin1Char(';')));
    CookieVault flooded(secrets, pending, session, site);
    wait(flooded.restore());
}

TEST(TransportTlsTest, HttpsIsVerifiedAgainstTheNameAndTheAuthority)
{
    HostileServer plain;
    test::TlsServer tls(plain.url(QStringLiteral("/api/app/v1/landed")).toString());
    ASSERT_TRUE(tls.started()) << tls.problem().toStdString();
    const auto fetch = [&](NetworkSession& session, const QString& host, const QString& path) {
        APIClient api(&session, QStringLiteral("https://%1:%2").arg(host).arg(tls.port()),
                      [] { return std::nullopt; });
        return wait(api.call<Nothing>({.path = path}, nullptr));
    };
    const QString name = QStringLiteral("localhost");

    NetworkSession trusting;
    trusting.trustAuthorities({tls.authority()});
    EXPECT_TRUE(fetch(trusting, name, QStringLiteral("config")));
    EXPECT_EQ(failure(fetch(trusting, QStringLiteral("127.0.0.1"), QStringLiteral("config"))),
              APIError::network());
    NetworkSession stranger;
    EXPECT_EQ(failure(fetch(stranger, name, QStringLiteral("config"))), APIError::network());

    // A redirect from https to plain http is never followed.
    plain.script(Answer::with(okAnswer(done)));
    EXPECT_EQ(failure(fetch(trusting, name, QStringLiteral("down"))), APIError::network());
    QTest::qWait(200);
    EXPECT_TRUE(plain.requests.isEmpty());
}
