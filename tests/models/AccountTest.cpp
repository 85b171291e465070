#include "app/hiring/ProfileEditForm.h"
#include "app/shell/AccountMenuModel.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using L10n::Key;

namespace {

class Account : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
    }

    void signInEmployer()
    {
        const QString email = QStringLiteral("hr@tonispuri.ge");
        ASSERT_TRUE(wait(context->api().authRequest(email, Lang::en, &context->auth)).ok());
        const auto verified =
            wait(context->api().authVerify(email, sandbox.lastCode(email), &context->auth));
        ASSERT_TRUE(verified.ok());
        wait(context->auth.signedIn(verified->token));
        ASSERT_TRUE(context->auth.me());
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    AccountMenuModel model{context->auth, context->candidate, context->preferences()};
};

} // namespace

TEST_F(Account, OneIdentityHasOneWayOutAndBothHaveThreeWithTheJobSeekerLeavingOnPurpose)
{
    EXPECT_TRUE(model.signOutEntries().empty());
    context->candidate.completeSignIn(QStringLiteral("self@example.ge"));
    EXPECT_EQ(model.signOutEntries(), std::vector<Key>{Key::signOut});
    EXPECT_FALSE(model.offersSeekerSignIn());

    signInEmployer();
    EXPECT_EQ(
        model.signOutEntries(),
        (std::vector<Key>{Key::macSignOutEmployer, Key::macSignOutSeeker, Key::macSignOutBoth}));
    wait(model.signOut(Key::macSignOutBoth));
    EXPECT_FALSE(context->auth.hiring());
    EXPECT_FALSE(context->candidate.signedIn());
    EXPECT_TRUE(context->candidate.declined());
    EXPECT_TRUE(model.signedOut());

    model.setWorkingAs(QStringLiteral("work"));
    EXPECT_EQ(preferencesOf(*context).string(QStringLiteral("vl.role")), QStringLiteral("work"));
    EXPECT_EQ(model.workingAs(), QStringLiteral("work"));
}

TEST_F(Account, TheCompanyProfileSavesAndTheAccountIsDeletedOnlyWhenTheServiceSaysSo)
{
    signInEmployer();
    ProfileEditForm form(context->api(), context->auth, context->appState);
    EXPECT_EQ(form.name, context->auth.me()->employer.name);
    form.name = QStringLiteral("Tonis Puri Ltd");
    form.website = QStringLiteral("https://tonispuri.ge");
    wait(form.save());
    EXPECT_EQ(form.note(), QStringLiteral("Saved."));
    EXPECT_EQ(context->auth.me()->employer.name, QStringLiteral("Tonis Puri Ltd"));

    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"DELETE","path":"/api/app/v1/me","mode":"status","status":500})");
    EXPECT_FALSE(wait(context->auth.deleteAccount()));
    EXPECT_TRUE(context->auth.hiring());
    sandbox.devPost(QStringLiteral("/dev/fault/clear"), {});
    EXPECT_TRUE(wait(context->auth.deleteAccount()));
    EXPECT_FALSE(context->auth.hiring());
}
