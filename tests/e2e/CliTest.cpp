#include "app/platform/KeychainSecretStore.h"
#include "core/format/Translit.h"
#include "tests/support/CliProcess.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

class CliTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString(); }

    CliProcess::Run run(const char* a, const char* b = nullptr, const char* c = nullptr,
                        const QString& d = {}) const
    {
        QStringList args{QString::fromUtf8(a)};
        for (const char* more : {b, c})
            if (more)
                args << QString::fromUtf8(more);
        if (!d.isEmpty())
            args << d;
        return cli.run(args);
    }

    SandboxProcess sandbox;
    CliProcess cli{sandbox.site()};
};

} // namespace

TEST_F(CliTest, PrintsTheTaxonomyAndTheBoot)
{
    const auto config = run("api", "GET", "config");
    ASSERT_EQ(config.exitCode, 0) << config.err.toStdString();
    const QJsonArray categories = config.json.value(QStringLiteral("categories")).toArray();
    ASSERT_FALSE(categories.isEmpty());
    EXPECT_FALSE(
        categories.first()[QStringLiteral("labels")][QStringLiteral("ka")].toString().isEmpty());

    const auto boot = run("boot");
    ASSERT_EQ(boot.exitCode, 0) << boot.err.toStdString();
    EXPECT_EQ(boot.json.value(QStringLiteral("categories")).toInt(), int(categories.size()));
    EXPECT_GT(boot.json.value(QStringLiteral("cities")).toInt(), 0);
    EXPECT_TRUE(boot.json.value(QStringLiteral("me")).isNull());
    EXPECT_TRUE(boot.json.value(QStringLiteral("updateRequired")).isNull());
}

TEST_F(CliTest, FailuresPrintTheirShapeAndWordsInTheChosenLanguage)
{
    ASSERT_EQ(run("lang", "en").json.value(QStringLiteral("lang")), QStringLiteral("en"));
    sandbox.devPost(
        QStringLiteral("/dev/fault"),
        R"({"method":"GET","path":"/api/app/v1/config","mode":"status","status":429,"body":"envelope","code":"rate"})");
    const auto limited = run("api", "GET", "config");
    EXPECT_EQ(limited.exitCode, 1);
    EXPECT_EQ(limited.json, (QJsonObject{{"error", "server"}, {"code", "rate"}}));
    EXPECT_EQ(limited.err.trimmed(),
              QStringLiteral("Too many attempts. Please wait a few minutes and try again."));

    run("lang", "ru");
    sandbox.devPost(QStringLiteral("/dev/fault"),
                    R"({"method":"GET","path":"/api/app/v1/config","mode":"html"})");
    const auto html = run("api", "GET", "config");
    EXPECT_EQ(html.json, (QJsonObject{{"error", "http"}, {"status", 200}}));
    EXPECT_TRUE(Translit::hasCyrillic(html.err)) << html.err.toStdString();

    EXPECT_EQ(run("api", "GET", "nowhere").exitCode, 2);
}

TEST_F(CliTest, AnEmployerSignsInStaysSignedInAcrossRunsAndSignsOut)
{
    if (!hasSessionBus())
        GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides one)";
    const QString email = QStringLiteral("hr@tonispuri.ge");

    EXPECT_EQ(run("employer", "request-code", nullptr, QStringLiteral("a@b")).exitCode, 1);
    EXPECT_TRUE(sandbox.lastCode(QStringLiteral("a@b")).isEmpty());

    const auto sent = run("employer", "request-code", nullptr, email);
    ASSERT_EQ(sent.exitCode, 0) << sent.err.toStdString();
    const QString code = sandbox.lastCode(email);
    ASSERT_EQ(code.size(), 6);

    QStringList wrongCode{QStringLiteral("employer"), QStringLiteral("verify"), email,
                          code == QStringLiteral("000000") ? QStringLiteral("111111")
                                                           : QStringLiteral("000000")};
    EXPECT_EQ(cli.run(wrongCode).exitCode, 1);

    const auto verified =
        cli.run({QStringLiteral("employer"), QStringLiteral("verify"), email, code});
    ASSERT_EQ(verified.exitCode, 0) << verified.err.toStdString();
    EXPECT_EQ(
        verified.json[QStringLiteral("me")][QStringLiteral("employer")][QStringLiteral("email")],
        email);

    // A new process finds the token in the keyring, and the service still accepts it.
    const auto again = run("boot");
    EXPECT_EQ(again.json[QStringLiteral("me")][QStringLiteral("employer")][QStringLiteral("email")],
              email)
        << again.out.toStdString();
    EXPECT_EQ(run("api", "GET", "me").exitCode, 0);

    EXPECT_EQ(run("employer", "sign-out").exitCode, 0);
    EXPECT_TRUE(run("boot").json.value(QStringLiteral("me")).isNull());
    EXPECT_EQ(run("api", "GET", "me").json, (QJsonObject{{"error", "server"}, {"code", "auth"}}));
}

TEST(Keyring, StoresReadsAndDeletesThroughTheSecretService)
{
    if (!hasSessionBus())
        GTEST_SKIP() << "needs a session bus with a Secret Service (scripts/test.sh provides one)";
    MemoryPreferences preferences;
    KeychainSecretStore store(preferences);
    const QString key = QStringLiteral("keyring-test");
    wait(store.set(QStringLiteral("first"), key));
    wait(store.set(QStringLiteral("second ✓"), key));
    EXPECT_EQ(wait(store.get(key)), QStringLiteral("second ✓"));
    wait(store.softSet(QStringLiteral("soft"), key));
    EXPECT_FALSE(preferences.contains(QStringLiteral("vl.soft.") + key));
    wait(store.remove(key));
    EXPECT_EQ(wait(store.get(key)), std::nullopt);
    EXPECT_EQ(wait(store.get(QStringLiteral("never-written"))), std::nullopt);
}
