#include "core/navigation/AccountRoute.h"
#include "core/navigation/MacSection.h"
#include "core/navigation/PushRoutes.h"
#include "core/navigation/WebLink.h"

#include <gtest/gtest.h>

using namespace vl;

namespace {

const PushRoutes routes(QStringLiteral("https://velmora.ge"));

} // namespace

TEST(PushRoutes, NormaliseStripsOriginsQueriesAndLanguagesAtSegmentBounds)
{
    EXPECT_EQ(routes.normalise(QStringLiteral("  https://www.velmora.ge/ka/vacancy/x?utm=1#top\n")),
              QStringLiteral("/vacancy/x"));
    EXPECT_EQ(routes.normalise(QStringLiteral("https://velmora.ge/en")), QStringLiteral("/"));
    EXPECT_EQ(routes.normalise(QStringLiteral("http://localhost:4321/ru/support")),
              QStringLiteral("/support"));
    EXPECT_EQ(routes.normalise(QStringLiteral("/ka")), QStringLiteral("/"));
    EXPECT_EQ(routes.normalise(QStringLiteral("/kaffee")), QStringLiteral("/kaffee"));
    EXPECT_EQ(routes.normalise(QString()), QStringLiteral("/"));
    EXPECT_EQ(routes.normalise(QStringLiteral("/a#b?c")), QStringLiteral("/a"));
    // A foreign origin is kept whole; plain http on the service's host is not its origin.
    EXPECT_EQ(routes.normalise(QStringLiteral("https://evil.example/vacancy/x")),
              QStringLiteral("https://evil.example/vacancy/x"));
    EXPECT_EQ(routes.normalise(QStringLiteral("http://velmora.ge/vacancy/x")),
              QStringLiteral("http://velmora.ge/vacancy/x"));
    // Languages come off in order, each once.
    EXPECT_EQ(routes.normalise(QStringLiteral("/ka/en/support")), QStringLiteral("/support"));
    EXPECT_EQ(routes.normalise(QStringLiteral("/en/ka/support")), QStringLiteral("/ka/support"));
}

TEST(PushRoutes, RouteTriesExactPathsThenPrefixesInOrder)
{
    using R = PushRoute;
    EXPECT_EQ(routes.route(QStringLiteral("https://www.velmora.ge/ka/vacancy/abc123-x?utm=1#top")),
              R::job(QStringLiteral("ABC123")));
    EXPECT_EQ(routes.route(QStringLiteral("/gig/q9-cleaning")), R::job(QStringLiteral("Q9")));
    EXPECT_EQ(routes.route(QStringLiteral("/vacancy/---")), R::job(QStringLiteral("---")));
    EXPECT_EQ(routes.route(QStringLiteral("/rep/badges")), R::at(PushPlace::reputation));
    EXPECT_EQ(routes.route(QStringLiteral("/en/inbox/banner")), R::at(PushPlace::billing));
    EXPECT_EQ(routes.route(QStringLiteral("/support")), R::at(PushPlace::support));
    EXPECT_EQ(routes.route(QStringLiteral("/support/more")),
              R::unknown(QStringLiteral("/support/more")));
    EXPECT_EQ(routes.route(QStringLiteral("/inbox/application/17")),
              R::application(QStringLiteral("17")));
    EXPECT_EQ(routes.route(QStringLiteral("/account/messages/t-4")),
              R::thread(QStringLiteral("t-4")));
    // "/me/application/" is tried before "/application/".
    EXPECT_EQ(routes.route(QStringLiteral("/me/application/ab")),
              R::candidate(QStringLiteral("ab")));
    EXPECT_EQ(routes.route(QStringLiteral("/application/ab/cd")),
              R::candidate(QStringLiteral("ab/cd")));
    EXPECT_EQ(routes.route(QStringLiteral("/inbox/application/")),
              R::unknown(QStringLiteral("/inbox/application/")));
    EXPECT_EQ(routes.route(QStringLiteral("/inbox/thread//x")),
              R::unknown(QStringLiteral("/inbox/thread//x")));
    EXPECT_EQ(routes.route(QStringLiteral("/ka")), R::unknown(QStringLiteral("/")));
}

TEST(PushRoutes, OwnOriginsFollowTheBuildsSite)
{
    EXPECT_TRUE(routes.isOwn(QUrl(QStringLiteral("https://velmora.ge/vacancy/a"))));
    EXPECT_TRUE(routes.isOwn(QUrl(QStringLiteral("https://www.velmora.ge/vacancy/a"))));
    EXPECT_TRUE(routes.isOwn(QUrl(QStringLiteral("http://localhost:4321/vacancy/a"))));
    EXPECT_FALSE(routes.isOwn(QUrl(QStringLiteral("http://velmora.ge/vacancy/a"))));
    EXPECT_FALSE(routes.isOwn(QUrl(QStringLiteral("https://velmora.ge.evil/vacancy/a"))));
    EXPECT_FALSE(routes.isOwn(QUrl(QStringLiteral("velm://vacancy/a"))));

    const PushRoutes development(QStringLiteral("http://localhost:4321/"));
    EXPECT_TRUE(development.isOwn(QUrl(QStringLiteral("http://localhost:4321/en/vacancy/a"))));
    EXPECT_EQ(development.normalise(QStringLiteral("http://localhost:4321/en/vacancy/a")),
              QStringLiteral("/vacancy/a"));
    EXPECT_EQ(PushRoutes::refOfSlug(QStringLiteral("abc123-barista-batumi")),
              QStringLiteral("ABC123"));
}

TEST(WebLink, OnlyVacancyLinksNameAListing)
{
    auto ref = [](const char* url) { return vacancyRefOfWebLink(QUrl(QString::fromLatin1(url))); };
    EXPECT_EQ(ref("https://velmora.ge/ka/vacancy/vl30001-barista"), QStringLiteral("VL30001"));
    EXPECT_EQ(ref("https://velmora.ge/vacancy/vl30002"), QStringLiteral("VL30002"));
    EXPECT_EQ(ref("https://velmora.ge//en//vacancy//x-"), QStringLiteral("X"));
    EXPECT_EQ(ref("https://velmora.ge/vacancy/---"), QStringLiteral("---"));
    EXPECT_EQ(ref("https://velmora.ge/gig/vl30003-cleaning"), std::nullopt);
    EXPECT_EQ(ref("https://velmora.ge/vacancy"), std::nullopt);
    EXPECT_EQ(ref("https://velmora.ge/de/vacancy/x"), std::nullopt);
}

TEST(MacSection, GroupsShowHiringOnlyForAnEmployer)
{
    using S = MacSection;
    const auto anonymous = macSectionGroups(false);
    ASSERT_EQ(anonymous.size(), 3u);
    EXPECT_EQ(anonymous[0].titleKey, L10n::Key::macFindWork);
    EXPECT_EQ(anonymous[2].id(), QStringLiteral("seekers"));
    EXPECT_EQ(visibleMacSections(false),
              (std::vector<S>{S::vacancies, S::forYou, S::saved, S::highscores, S::inbox,
                              S::account, S::seekers, S::news, S::support}));
    const auto hiring = macSectionGroups(true);
    ASSERT_EQ(hiring.size(), 4u);
    EXPECT_EQ(hiring[1].titleKey, L10n::Key::macHiring);
    EXPECT_EQ(hiring[1].items, (std::vector<S>{S::listings, S::applicants}));

    EXPECT_EQ(stepMacSection(S::support, 1, false), S::vacancies);
    EXPECT_EQ(stepMacSection(S::vacancies, -1, true), S::support);
    EXPECT_EQ(stepMacSection(S::highscores, 1, true), S::listings);
    EXPECT_EQ(stepMacSection(S::highscores, 1, false), S::inbox);
    EXPECT_EQ(stepMacSection(S::listings, 1, false), S::vacancies);
    for (S section : allMacSections)
        EXPECT_EQ(macSectionFromRaw(rawValue(section)), section);
}

TEST(AccountRoute, PendingRoutesPushOneDestination)
{
    using A = AccountRoute;
    EXPECT_EQ(A::forPush(PushRoute::application(QStringLiteral("9"))),
              A::application(QStringLiteral("9")));
    EXPECT_EQ(A::forPush(PushRoute::at(PushPlace::billing)), A::plain(A::Kind::listings));
    EXPECT_EQ(A::forPush(PushRoute::at(PushPlace::seekerInbox)), A::plain(A::Kind::seekerInbox));
    EXPECT_EQ(A::forPush(PushRoute::job(QStringLiteral("X"))), std::nullopt);
    EXPECT_EQ(A::forPush(PushRoute::unknown(QStringLiteral("/x"))), std::nullopt);
    EXPECT_NE(qHash(A::thread(QStringLiteral("1"))), qHash(A::candidate(QStringLiteral("1"))));
}
