#include "app/shell/MacNav.h"
#include "app/shell/Router.h"
#include "app/shell/WebLinkHandler.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vl;

namespace {

class NavigationTest : public testing::Test {
protected:
    Router router{QStringLiteral("https://velmora.ge")};
    MacNav nav{router};
    WebLinkHandler links{router, nav};
};

} // namespace

TEST_F(NavigationTest, AListingLinkSelectsItOnTheBoard)
{
    nav.setSection(MacSection::news);
    router.setPending(QStringLiteral("/verify"));
    router.open(QStringLiteral("https://www.velmora.ge/ka/vacancy/abc123-x?utm=1#top"));
    EXPECT_EQ(router.selectedJob(), QStringLiteral("ABC123"));
    EXPECT_EQ(router.pending(), std::nullopt);
    EXPECT_EQ(router.tab(), 0);
    EXPECT_EQ(nav.section(), MacSection::vacancies);
}

TEST_F(NavigationTest, APlaceWaitsAsPendingInTheInbox)
{
    router.open(QStringLiteral("https://velmora.ge/en/inbox/pro?x=1"));
    EXPECT_EQ(router.pending(), QStringLiteral("/inbox/pro"));
    EXPECT_EQ(router.tab(), 2);
    EXPECT_EQ(nav.section(), MacSection::inbox);

    QSignalSpy touched(&router, &Router::pendingChanged);
    nav.setSection(MacSection::saved);
    router.open(QStringLiteral("/nowhere"));
    router.open(QStringLiteral("/inbox/thread/"));
    EXPECT_EQ(touched.count(), 0);
    EXPECT_EQ(nav.section(), MacSection::saved);

    router.setTab(3);
    EXPECT_EQ(nav.section(), MacSection::account);
    router.setTab(9);
    EXPECT_EQ(nav.section(), MacSection::vacancies);
}

TEST_F(NavigationTest, StepMovesThroughTheVisibleRowsAndHoldsAtTheEnds)
{
    router.step(1);
    EXPECT_EQ(router.selectedJob(), std::nullopt);

    router.setVisibleJobs({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    router.step(-1);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("C"));
    router.step(1);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("C"));
    router.step(-2);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("A"));
    router.step(-1);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("A"));
    router.selectJob(QStringLiteral("GONE"));
    router.step(1);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("A"));
    router.selectJob(std::nullopt);
    router.step(0);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("C"));

    router.setVisibleSeekers({QStringLiteral("S1"), QStringLiteral("S2")});
    router.stepSeekers(1);
    router.stepSeekers(1);
    EXPECT_EQ(router.selectedSeeker(), QStringLiteral("S2"));
    router.setVisibleNews({QStringLiteral("N1"), QStringLiteral("N2")});
    router.stepNews(-1);
    EXPECT_EQ(router.selectedNews(), QStringLiteral("N2"));
    EXPECT_EQ(router.selectedJob(), QStringLiteral("C"));
}

TEST_F(NavigationTest, NextPlaceWrapsThroughTheVisibleSections)
{
    nav.setSection(MacSection::support);
    nav.stepSection(1, false);
    EXPECT_EQ(nav.section(), MacSection::vacancies);
    nav.stepSection(-1, true);
    EXPECT_EQ(nav.section(), MacSection::support);
    nav.setSection(MacSection::highscores);
    nav.stepSection(1, true);
    EXPECT_EQ(nav.section(), MacSection::listings);

    QSignalSpy reloads(&nav, &MacNav::reloadsChanged);
    nav.reload();
    nav.reload();
    EXPECT_EQ(nav.reloads(), 2);
    EXPECT_EQ(reloads.count(), 2);
}

TEST_F(NavigationTest, WebLinksOpenOnlyVacanciesDecidedByTheirPath)
{
    nav.setSection(MacSection::inbox);
    EXPECT_FALSE(links.open(QUrl(QStringLiteral("https://velmora.ge/ka/gig/vl30003-cleaning"))));
    EXPECT_FALSE(links.open(QUrl(QStringLiteral("https://velmora.ge/inbox/pro"))));
    EXPECT_FALSE(links.open(QUrl(QStringLiteral("https://velmora.ge/vacancy/"))));
    EXPECT_FALSE(links.open(QUrl(QStringLiteral("https://velmora.ge/de/vacancy/vl30001"))));
    EXPECT_EQ(nav.section(), MacSection::inbox);
    EXPECT_EQ(router.selectedJob(), std::nullopt);

    EXPECT_TRUE(links.open(QUrl(QStringLiteral("https://www.velmora.ge/en/vacancy/vl30001-cook"))));
    EXPECT_EQ(nav.section(), MacSection::vacancies);
    EXPECT_EQ(router.selectedJob(), QStringLiteral("VL30001"));
    EXPECT_TRUE(links.open(QUrl(QStringLiteral("http://localhost:4321/vacancy/vl30002"))));
    EXPECT_EQ(router.selectedJob(), QStringLiteral("VL30002"));
    // The desktop hands over only the links it registered the client for; the host is not
    // asked again.
    EXPECT_TRUE(links.open(QUrl(QStringLiteral("https://velmora.example/vacancy/vl30003"))));
    EXPECT_EQ(router.selectedJob(), QStringLiteral("VL30003"));
}
