#include "tests/support/CliProcess.h"
#include "tests/support/SandboxProcess.h"

#include <QJsonArray>
#include <gtest/gtest.h>

using namespace vl::test;

namespace {

// Each velmora-cli run is a process that ends as soon as its command is done: whatever it did
// not wait for is lost, and the next run shows it.
class LifecycleCliTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!hasSessionBus())
            GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides "
                            "one)";
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        cli.run({QStringLiteral("lang"), QStringLiteral("en")});
    }

    void TearDown() override
    {
        // The keyring is the session's: leave nobody signed in for the next test.
        sandbox.devPost(QStringLiteral("/dev/fault/clear"), "{}");
        cli.run({QStringLiteral("employer"), QStringLiteral("sign-out")});
        cli.run({QStringLiteral("candidate"), QStringLiteral("sign-out")});
    }

    CliProcess::Run run(const QStringList& args) const { return cli.run(args); }

    CliProcess::Run employerSignIn(const QString& email) const
    {
        const auto sent = run({QStringLiteral("employer"), QStringLiteral("request-code"), email});
        EXPECT_EQ(sent.exitCode, 0) << sent.err.toStdString();
        return run(
            {QStringLiteral("employer"), QStringLiteral("verify"), email, sandbox.lastCode(email)});
    }

    QJsonValue bootedMe() const { return run({QStringLiteral("boot")}).json[QStringLiteral("me")]; }

    QJsonObject candidateStatus() const
    {
        return run({QStringLiteral("candidate"), QStringLiteral("status")}).json;
    }

    // How many requests the sandbox saw for this method and path since the test began.
    int requestsTo(const char* method, const QString& path) const
    {
        int count = 0;
        const QJsonArray log = sandbox.devGet(QStringLiteral("/dev/requests")).toArray();
        for (const QJsonValue& entry : log)
            if (entry[QStringLiteral("method")] == QLatin1StringView(method) &&
                entry[QStringLiteral("path")] == path)
                ++count;
        return count;
    }

    SandboxProcess sandbox;
    CliProcess cli{sandbox.site()};
};

const QString mePath = QStringLiteral("/api/app/v1/me");

} // namespace

TEST_F(LifecycleCliTest, EndingTheEmployerSessionSurvivesTheNextStart)
{
    const QString email = QStringLiteral("hr@tonispuri.ge");

    // Signing out: the next start holds no token, so it does not even ask for `me`.
    ASSERT_EQ(employerSignIn(email).exitCode, 0);
    ASSERT_EQ(run({QStringLiteral("employer"), QStringLiteral("sign-out")}).exitCode, 0);
    const int asked = requestsTo("GET", mePath);
    EXPECT_TRUE(bootedMe().isNull());
    EXPECT_EQ(requestsTo("GET", mePath), asked);

    // The service ending the session ("auth" from `me`): the same, once the service is fine.
    ASSERT_EQ(employerSignIn(email).exitCode, 0);
    sandbox.devPost(
        QStringLiteral("/dev/fault"),
        R"({"method":"GET","path":"/api/app/v1/me","mode":"status","status":401,"body":"envelope","code":"auth"})");
    EXPECT_TRUE(bootedMe().isNull());
    sandbox.devPost(QStringLiteral("/dev/fault/clear"), "{}");
    const int afterAuth = requestsTo("GET", mePath);
    EXPECT_TRUE(bootedMe().isNull());
    EXPECT_EQ(requestsTo("GET", mePath), afterAuth);
}

TEST_F(LifecycleCliTest, OnlyTheServiceAnswerMakesAnEmployerSignIn)
{
    const QString email = QStringLiteral("hr@tonispuri.ge");
    ASSERT_EQ(employerSignIn(email).exitCode, 0);
    ASSERT_EQ(run({QStringLiteral("employer"), QStringLiteral("request-code"), email}).exitCode, 0);
    const QString code = sandbox.lastCode(email);
    const QString wrong =
        code == QStringLiteral("000000") ? QStringLiteral("111111") : QStringLiteral("000000");

    // A token is still held from the first sign-in, and it proves nothing about this one.
    const auto refused = run({QStringLiteral("employer"), QStringLiteral("verify"), email, wrong});
    EXPECT_EQ(refused.exitCode, 1) << refused.out.toStdString();
    EXPECT_EQ(refused.json[QStringLiteral("error")], QStringLiteral("form"));

    // Typed with a space around it, the code is seven characters and never leaves.
    const int verifies = requestsTo("POST", QStringLiteral("/api/app/v1/auth/verify"));
    const auto padded =
        run({QStringLiteral("employer"), QStringLiteral("verify"), email, code + QLatin1Char(' ')});
    EXPECT_EQ(padded.exitCode, 1);
    EXPECT_EQ(requestsTo("POST", QStringLiteral("/api/app/v1/auth/verify")), verifies);
}

TEST_F(LifecycleCliTest, AnAdoptedJobSeekerComesAndGoesWithTheEmployer)
{
    // This address is also a job seeker's: the employer's sign-in opens that side too.
    const QString email = QStringLiteral("dato@kodari.ge");
    const auto verified = employerSignIn(email);
    ASSERT_EQ(verified.exitCode, 0) << verified.err.toStdString();
    EXPECT_EQ(verified.json[QStringLiteral("candidate")], email);
    EXPECT_EQ(candidateStatus(),
              (QJsonObject{{QStringLiteral("email"), email}, {QStringLiteral("session"), true}}));

    // The employer's sign-out takes the job seeker side along, at the service too.
    ASSERT_EQ(run({QStringLiteral("employer"), QStringLiteral("sign-out")}).exitCode, 0);
    EXPECT_EQ(requestsTo("POST", QStringLiteral("/api/candidate/logout")), 1);
    EXPECT_EQ(candidateStatus(), (QJsonObject{{QStringLiteral("email"), QJsonValue::Null},
                                              {QStringLiteral("session"), false}}));

    // It was no decline: the next employer sign-in carries the job seeker again.
    EXPECT_EQ(employerSignIn(email).json[QStringLiteral("candidate")], email);
}
