#include "app/shell/ReviewAsk.h"

#include "tests/support/Fakes.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

constexpr qint64 day = 86400;
using Moment = ReviewAsk::GoodMoment;

// A ReviewAsk on memory preferences and a clock the test moves by hand.
struct Fixture {
    MemoryPreferences preferences;
    QDateTime now = QDateTime(QDate(2025, 3, 1), QTime(9, 0), Qt::UTC);
    ReviewAsk review{preferences, [this] { return now; }};

    qsizetype asks() const
    {
        return preferences.value(QStringLiteral("vl.review.asks")).toStringList().size();
    }
    int good() const { return preferences.value(QStringLiteral("vl.review.good")).toInt(); }
    // A person who has used the app for a while: three launches, long ago.
    void seasoned()
    {
        for (int i = 0; i < 3; ++i)
            review.countLaunch();
        now = now.addSecs(30 * day);
    }
};

} // namespace

TEST(ReviewAsk, WaitsForTwoDaysThreeLaunchesAndTwoGoodMoments)
{
    Fixture f;
    f.review.countLaunch();
    const QString firstSeen = f.preferences.string(QStringLiteral("vl.review.firstSeen"));
    f.review.record(Moment::applicationSent);
    f.review.record(Moment::messageSent);
    EXPECT_FALSE(f.review.pending()); // the first day

    f.now = f.now.addSecs(2 * day - 1);
    f.review.countLaunch();
    f.review.countLaunch();
    EXPECT_EQ(f.preferences.string(QStringLiteral("vl.review.firstSeen")), firstSeen);
    EXPECT_EQ(f.preferences.value(QStringLiteral("vl.review.sessions")).toInt(), 3);
    f.review.record(Moment::listingSubmitted);
    EXPECT_FALSE(f.review.pending()); // one second short of two days

    f.now = f.now.addSecs(1);
    QSignalSpy changed(&f.review, &ReviewAsk::changed);
    f.review.record(Moment::messageSent);
    EXPECT_TRUE(f.review.pending());
    EXPECT_TRUE(f.review.cardVisible());
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(f.good(), 4);
    EXPECT_EQ(f.asks(), 1);
    EXPECT_EQ(QDateTime::fromString(f.preferences.string(QStringLiteral("vl.review.lastAsk")),
                                    Qt::ISODateWithMs),
              f.now);

    Fixture fewLaunches;
    fewLaunches.review.countLaunch();
    fewLaunches.review.countLaunch();
    fewLaunches.now = fewLaunches.now.addSecs(10 * day);
    for (int i = 0; i < 5; ++i)
        fewLaunches.review.record(Moment::applicationSent);
    EXPECT_FALSE(fewLaunches.review.pending());

    Fixture oneMoment;
    oneMoment.seasoned();
    oneMoment.review.record(Moment::applicationSent);
    EXPECT_FALSE(oneMoment.review.pending());
    EXPECT_EQ(oneMoment.asks(), 0);
}

TEST(ReviewAsk, AsksAtMostThreeTimesAYearAndNeverWithinNinetyDays)
{
    Fixture f;
    f.seasoned();
    f.review.record(Moment::applicationSent);
    f.review.record(Moment::applicationSent);
    ASSERT_EQ(f.asks(), 1);

    f.now = f.now.addSecs(90 * day);
    f.review.record(Moment::applicationSent);
    EXPECT_EQ(f.asks(), 1); // exactly ninety days is not more than ninety
    f.now = f.now.addSecs(1);
    f.review.record(Moment::applicationSent);
    EXPECT_EQ(f.asks(), 2);
    f.now = f.now.addSecs(91 * day);
    f.review.record(Moment::applicationSent);
    EXPECT_EQ(f.asks(), 3); // a third within the year is still allowed
    f.now = f.now.addSecs(91 * day);
    f.review.record(Moment::applicationSent);
    EXPECT_EQ(f.asks(), 3); // a fourth is not
    EXPECT_FALSE(f.review.mayAsk());

    // Once the first ask is more than a year old, there is room again; it is no longer kept.
    f.now = f.now.addSecs(94 * day);
    f.review.record(Moment::applicationSent);
    EXPECT_EQ(f.asks(), 3);
    EXPECT_EQ(f.good(), 7);
}

TEST(ReviewAsk, AWrittenReviewEndsTheAsking)
{
    Fixture f;
    f.seasoned();
    f.review.record(Moment::applicationSent);
    f.review.reviewWritten();
    EXPECT_TRUE(f.preferences.value(QStringLiteral("vl.review.done")).toBool());
    f.review.record(Moment::applicationSent);
    EXPECT_FALSE(f.review.pending());
    EXPECT_FALSE(f.review.mayAsk());
    EXPECT_EQ(f.asks(), 0);
}

TEST(ReviewAsk, AFirstReplyCountsOncePerApplicationAmongTheLatestTwoHundred)
{
    Fixture f;
    f.review.sawReply(QStringLiteral("a1"));
    f.review.sawReply(QStringLiteral("a1"));
    EXPECT_EQ(f.good(), 1);
    for (int i = 2; i <= 201; ++i)
        f.review.sawReply(QStringLiteral("a%1").arg(i));
    const QStringList kept =
        f.preferences.value(QStringLiteral("vl.review.replied")).toStringList();
    EXPECT_EQ(kept.size(), 200);
    EXPECT_EQ(kept.front(), QStringLiteral("a2"));
    EXPECT_EQ(f.good(), 201);
    // The oldest id fell out of the list, so it counts again; a kept one does not.
    f.review.sawReply(QStringLiteral("a1"));
    f.review.sawReply(QStringLiteral("a150"));
    EXPECT_EQ(f.good(), 202);
}

TEST(ReviewAsk, TheCardShowsAfterADayOfUseUntilHiddenOrWritten)
{
    Fixture f;
    f.review.countLaunch();
    f.review.countLaunch();
    f.review.sawReply(QStringLiteral("a1"));
    f.now = f.now.addSecs(day - 1);
    f.review.evaluateCard();
    EXPECT_FALSE(f.review.cardVisible());
    f.now = f.now.addSecs(1);
    f.review.evaluateCard();
    EXPECT_TRUE(f.review.cardVisible());
    EXPECT_FALSE(f.review.pending());

    f.review.hideCard();
    EXPECT_FALSE(f.review.cardVisible());
    EXPECT_TRUE(f.preferences.value(QStringLiteral("vl.review.cardHidden")).toBool());
    f.review.evaluateCard();
    EXPECT_FALSE(f.review.cardVisible());

    Fixture written;
    written.seasoned();
    written.review.reviewWritten();
    written.review.evaluateCard();
    EXPECT_FALSE(written.review.cardVisible());

    Fixture twoLaunches;
    twoLaunches.review.countLaunch();
    twoLaunches.review.countLaunch();
    twoLaunches.now = twoLaunches.now.addSecs(5 * day);
    twoLaunches.review.evaluateCard();
    EXPECT_FALSE(twoLaunches.review.cardVisible());
}
