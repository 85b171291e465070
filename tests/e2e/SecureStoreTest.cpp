#include "app/identity/CandidateGate.h"
#include "core/applying/MyActivityPayload.h"
#include "tests/support/CliProcess.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

bool sessionAccepted(AppContext& context)
{
    return wait(context.api().call<MyActivityPayload>({.shape = APIClient::Shape::bearerRead,
                                                       .path = QStringLiteral("my/activity"),
                                                       .fresh = true},
                                                      &context.candidate))
        .ok();
}

} // namespace

// Two contexts in one process stand for two runs: the second finds the first one's session
// cookie and stored entries in the real keyring.
TEST(SecureStore, TheSessionCookieAndTheStoredEntriesOutliveTheProcessInTheKeyring)
{
    if (!hasSessionBus())
        GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides one)";
    SandboxProcess sandbox;
    ASSERT_TRUE(sandbox.started());
    const QString email = QStringLiteral("tamar.lomidze@mail.ge");
    {
        auto first = makeContext({.site = sandbox.site(), .realSecretService = true});
        wait(first->start());
        wait(first->secrets().set(QStringLiteral("not json"), QStringLiteral("candidate-apps")));
        wait(first->candidateStore.open());
        EXPECT_TRUE(first->candidateStore.entries().empty());
        wait(first->candidateStore.add(
            {QStringLiteral("A1"), QStringLiteral("K1"), QStringLiteral("Cook"),
             QStringLiteral("Kodari"), QStringLiteral("application"),
             QDateTime::fromString(QStringLiteral("2026-05-01T10:00:00Z"), Qt::ISODate)}));
        CandidateGate gate(first->candidate, first->appState, [](const QUrl&) { return true; });
        gate.email = email;
        wait(gate.sendCode());
        gate.code = sandbox.lastCode(email);
        wait(gate.verifyCode());
        wait(gate.continueMailOnly());
        ASSERT_TRUE(first->candidate.signedIn());
        wait(first->settle());
    }
    auto second = makeContext({.site = sandbox.site(), .realSecretService = true});
    wait(second->start());
    EXPECT_TRUE(sessionAccepted(*second));
    wait(second->candidateStore.open());
    ASSERT_EQ(second->candidateStore.entries().size(), 1u);
    EXPECT_EQ(second->candidateStore.entries()[0].key, QStringLiteral("K1"));

    second->candidate.completeSignIn(email);
    wait(second->candidate.signOut());
    wait(second->settle());
    auto third = makeContext({.site = sandbox.site(), .realSecretService = true});
    wait(third->start());
    EXPECT_FALSE(sessionAccepted(*third));
    wait(third->secrets().remove(QStringLiteral("candidate-apps")));
}
