#include "app/window/AccountScreen.h"

#include "tests/support/TestContext.h"
#include "tests/ui/UrlCatcher.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

// A person who has used the client for two days over three launches.
std::unique_ptr<AppContext> aRegular()
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    context->appState.setLang(Lang::en);
    auto& preferences = context->preferences();
    preferences.setValue(QStringLiteral("vl.review.firstSeen"),
                         QDateTime::currentDateTimeUtc().addDays(-2).toString(Qt::ISODateWithMs));
    preferences.setValue(QStringLiteral("vl.review.sessions"), 3);
    return context;
}

bool cardShown(QWidget& screen)
{
    auto* card = screen.findChild<QWidget*>(QStringLiteral("vl.reviewNotice"));
    return card && card->isVisible();
}

} // namespace

TEST(AccountScreen, TheReviewCardShowsWhenTheScreenAppearsUntilItIsDismissed)
{
    auto context = aRegular();
    {
        AccountScreen screen(*context);
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
        ASSERT_TRUE(cardShown(screen));
        QStringList texts;
        for (const QLabel* label : screen.findChildren<QLabel*>())
            texts << label->text();
        EXPECT_TRUE(texts.contains(QStringLiteral("Rate Velmora")));
        screen.findChild<QPushButton*>(QStringLiteral("vl.reviewNotice.later"))->click();
        EXPECT_FALSE(cardShown(screen));
    }
    AccountScreen again(*context);
    again.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&again));
    EXPECT_FALSE(cardShown(again));
}

TEST(AccountScreen, WritingTheReviewOpensTheStorePageAndEndsTheCard)
{
    auto context = aRegular();
    UrlCatcher browser;
    AccountScreen screen(*context);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
    ASSERT_TRUE(cardShown(screen));
    screen.findChild<QPushButton*>(QStringLiteral("vl.reviewNotice.write"))->click();
    ASSERT_EQ(browser.opened.size(), 1);
    EXPECT_EQ(browser.opened.first().query(), QStringLiteral("action=write-review"));
    EXPECT_FALSE(cardShown(screen));
    EXPECT_TRUE(context->preferences().value(QStringLiteral("vl.review.done")).toBool());

    // A newcomer of one launch sees none.
    auto fresh = makeContext({QStringLiteral("http://127.0.0.1:9")});
    fresh->review.countLaunch();
    AccountScreen first(*fresh);
    first.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&first));
    EXPECT_FALSE(cardShown(first));
}
