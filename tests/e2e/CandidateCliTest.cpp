#include "tests/support/CliProcess.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TotpCode.h"

#include <QDirIterator>
#include <QJsonArray>
#include <gtest/gtest.h>

using namespace vl::test;

namespace {

class CandidateCliTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!hasSessionBus())
            GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides "
                            "one)";
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        cli.run({QStringLiteral("lang"), QStringLiteral("en")});
    }

    CliProcess::Run run(QStringList args) const
    {
        args.prepend(QStringLiteral("candidate"));
        return cli.run(args);
    }

    // The address and its mailed code; what `verify` printed.
    QJsonObject signInByCode(const QString& email) const
    {
        const auto sent = run({QStringLiteral("request-code"), email});
        EXPECT_EQ(sent.json, (QJsonObject{{"sent", true}})) << sent.err.toStdString();
        const auto verified = run({QStringLiteral("verify"), email, sandbox.lastCode(email)});
        EXPECT_EQ(verified.exitCode, 0) << verified.err.toStdString();
        return verified.json;
    }

    QJsonObject status() const { return run({QStringLiteral("status")}).json; }

    SandboxProcess sandbox;
    CliProcess cli{sandbox.site()};
};

} // namespace

TEST_F(CandidateCliTest, ANewJobSeekerEnrolsAnAuthenticatorStaysSignedInAndSignsOut)
{
    const QString email = QStringLiteral("new.seeker@example.ge");
    EXPECT_EQ(status(), (QJsonObject{{"email", QJsonValue::Null}, {"session", false}}));
    EXPECT_EQ(signInByCode(email), (QJsonObject{{"step", "factorEnroll"}, {"mailOnly", false}}));

    // The half-finished sign-in waits in the runtime folder, and only there.
    QDirIterator kept(cli.runtimeFolder(), QDir::Files, QDirIterator::Subdirectories);
    ASSERT_TRUE(kept.hasNext());
    QFile pending(kept.next());
    ASSERT_TRUE(pending.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pending.readAll().contains("\"ticket\""));
    EXPECT_EQ(pending.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);

    const auto setup = run({QStringLiteral("totp-setup")});
    ASSERT_EQ(setup.exitCode, 0) << setup.err.toStdString();
    const QString secret = setup.json[QStringLiteral("secret")].toString();
    ASSERT_FALSE(secret.isEmpty());
    EXPECT_EQ(setup.json[QStringLiteral("otpauth")],
              QStringLiteral("otpauth://totp/Velmora:?secret=") + secret +
                  QStringLiteral("&issuer=Velmora"));

    const auto wrong = run({QStringLiteral("totp-enroll"), QStringLiteral("12345x")});
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_EQ(wrong.err.trimmed(),
              QStringLiteral("That code is wrong or expired. Request a new one."));

    const auto enrolled = run({QStringLiteral("totp-enroll"), totpCode(secret)});
    ASSERT_EQ(enrolled.exitCode, 0) << enrolled.err.toStdString();
    const QJsonArray recovery = enrolled.json[QStringLiteral("recovery")].toArray();
    ASSERT_FALSE(recovery.isEmpty()) << enrolled.out.toStdString();

    // A new process reads the address and the session cookie back; the service accepts it.
    EXPECT_EQ(status(), (QJsonObject{{"email", email}, {"session", true}}));

    EXPECT_EQ(run({QStringLiteral("sign-out")}).json, (QJsonObject{{"signedIn", false}}));
    EXPECT_EQ(status(), (QJsonObject{{"email", QJsonValue::Null}, {"session", false}}));

    // A recovery code instead of the six digits: once.
    const QString rescue = recovery[0].toString();
    EXPECT_EQ(signInByCode(email), (QJsonObject{{"step", "factorVerify"}, {"mailOnly", false}}));
    const auto rescued = run({QStringLiteral("totp-login"), rescue});
    ASSERT_EQ(rescued.exitCode, 0) << rescued.err.toStdString();
    EXPECT_EQ(status(), (QJsonObject{{"email", email}, {"session", true}}));
    run({QStringLiteral("sign-out")});

    signInByCode(email);
    const auto twice = run({QStringLiteral("totp-login"), rescue});
    EXPECT_EQ(twice.exitCode, 1);
    EXPECT_EQ(status(), (QJsonObject{{"email", QJsonValue::Null}, {"session", false}}));
}

TEST_F(CandidateCliTest, MailOnlyAccountsContinueWithoutAFactorOrFinishAtOnce)
{
    EXPECT_EQ(signInByCode(QStringLiteral("tamar.lomidze@mail.ge")),
              (QJsonObject{{"step", "factorEnroll"}, {"mailOnly", true}}));
    const auto continued = run({QStringLiteral("continue")});
    EXPECT_EQ(continued.json,
              (QJsonObject{{"signedIn", true}, {"email", "tamar.lomidze@mail.ge"}}));
    EXPECT_EQ(status()[QStringLiteral("session")], true);
    run({QStringLiteral("sign-out")});

    EXPECT_EQ(signInByCode(QStringLiteral("levan.gelashvili@gmail.com")),
              (QJsonObject{{"step", "signedIn"}, {"mailOnly", true}}));
    EXPECT_EQ(status()[QStringLiteral("session")], true);
    run({QStringLiteral("sign-out")});

    EXPECT_EQ(run({QStringLiteral("continue")}).exitCode, 2); // nothing under way
}
