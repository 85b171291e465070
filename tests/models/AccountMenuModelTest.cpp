#include "app/shell/AccountMenuModel.h"

#include "tests/support/TestContext.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

// Nothing listens at the site: the employer's summary never loads, so the name falls back.
TEST(AccountMenuModel, NamesTheIdentitiesAndOffersOnlyTheEmployersWayInOrOut)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    AccountMenuModel model(context->auth, context->candidate, context->preferences());
    EXPECT_TRUE(model.signedOut());
    EXPECT_EQ(model.name(), QString());
    EXPECT_EQ(model.role(), std::nullopt);
    EXPECT_TRUE(model.offersEmployerSignIn());
    EXPECT_EQ(model.employerSignOut(), std::nullopt);

    QSignalSpy changed(&model, &AccountMenuModel::changed);
    context->candidate.completeSignIn(QStringLiteral("nino@example.ge"));
    EXPECT_FALSE(model.signedOut());
    EXPECT_EQ(model.name(), QStringLiteral("nino@example.ge"));
    EXPECT_EQ(model.role(), Key::macAsSeeker);
    EXPECT_TRUE(model.offersEmployerSignIn()); // a job seeker may still sign in to hire
    EXPECT_EQ(model.employerSignOut(), std::nullopt);

    secretsOf(*context).items.insert(QStringLiteral("session"), QStringLiteral("tok"));
    wait(context->start());
    EXPECT_EQ(model.role(), Key::macAsBoth);
    EXPECT_EQ(model.name(), QStringLiteral("nino@example.ge"));
    EXPECT_FALSE(model.offersEmployerSignIn());
    EXPECT_EQ(model.employerSignOut(), Key::macSignOutEmployer);

    context->candidate.signOut();
    EXPECT_EQ(model.role(), Key::macAsEmployer);
    EXPECT_EQ(model.name(), QString()); // no summary yet, and no address to show instead
    EXPECT_EQ(model.employerSignOut(), Key::signOut);
    EXPECT_GE(changed.size(), 3);

    // Signing out of hiring forgets the session even when the service cannot be reached.
    wait(model.signOutEmployer());
    EXPECT_TRUE(model.signedOut());
    EXPECT_FALSE(secretsOf(*context).items.contains(QStringLiteral("session")));
}
