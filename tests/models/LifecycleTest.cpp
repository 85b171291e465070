#include "app/platform/PendingWrites.h"
#include "app/shell/InstanceChannel.h"
#include "tests/support/TestContext.h"

#include <QCoreApplication>
#include <QCoroTimer>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using namespace std::chrono_literals;

namespace {

QCoro::Task<> slowWrite(std::chrono::milliseconds takes, bool& done)
{
    co_await QCoro::sleepFor(takes);
    done = true;
}

} // namespace

TEST(PendingWrites, QuittingWaitsForDroppedWorkButNotForever)
{
    PendingWrites pending;
    EXPECT_TRUE(wait(pending.settle(0ms)));

    // Started and dropped, as a click starts a sign-out: still counted until it ends.
    bool first = false;
    bool second = false;
    pending.guard(slowWrite(150ms, first));
    pending.guard(slowWrite(300ms, second));
    EXPECT_EQ(pending.underWay(), 2);
    EXPECT_TRUE(wait(pending.settle(5s)));
    EXPECT_TRUE(first);
    EXPECT_TRUE(second);
    EXPECT_EQ(pending.underWay(), 0);

    // A write that outlasts the bound does not hold the process.
    bool stuck = false;
    pending.guard(slowWrite(1s, stuck));
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(wait(pending.settle(200ms)));
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_FALSE(stuck);
    EXPECT_TRUE(wait(pending.settle(5s)));
}

TEST(PendingWrites, ASessionCookieFromTheServiceIsWrittenBeforeTheContextSettles)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    QNetworkCookie session("vl_cand", "s1");
    session.setDomain(QStringLiteral("127.0.0.1"));
    session.setPath(QStringLiteral("/"));
    context->session().cookieJar()->insertCookie(session);
    wait(context->settle());
    EXPECT_TRUE(secretsOf(*context)
                    .items.value(QStringLiteral("cookies"))
                    .contains(QStringLiteral("vl_cand=s1")));
}

TEST(InstanceChannel, TakesLinksLineByLineAndDropsAPeerThatNeverEndsOne)
{
    // A site of its own, so that no other run's client answers on this socket.
    InstanceChannel channel(QStringLiteral("http://127.0.0.1:9/") +
                            QString::number(QCoreApplication::applicationPid()));
    ASSERT_TRUE(channel.listen());
    QSignalSpy links(&channel, &InstanceChannel::linkReceived);

    QLocalSocket flood;
    flood.connectToServer(channel.path());
    ASSERT_TRUE(flood.waitForConnected(2000));
    flood.write(QByteArray(200 * 1024, 'a'));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return flood.state() == QLocalSocket::UnconnectedState; }, 5000));
    EXPECT_EQ(links.size(), 0);

    EXPECT_TRUE(channel.handOver(QStringLiteral("https://velmora.ge/vacancy/vl1")));
    ASSERT_TRUE(links.wait(2000));
    EXPECT_EQ(links.first().first().toString(), QStringLiteral("https://velmora.ge/vacancy/vl1"));
}
