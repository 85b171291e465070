#include "app/identity/CandidateGate.h"

#include "core/applying/MyActivityPayload.h"
#include "core/identity/TotpKey.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"
#include "tests/support/TotpCode.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QTest>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;
using Step = CandidateGate::Step;

namespace {

const QString nino = QStringLiteral("nino.beridze@mail.ge");
const QString ninoSecret = QStringLiteral("GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ");
const QString giorgi = QStringLiteral("giorgi.kapanadze@gmail.com");
const QString tamar = QStringLiteral("tamar.lomidze@mail.ge");
const QString levan = QStringLiteral("levan.gelashvili@gmail.com");

QString text(L10n::Key key)
{
    return L10n::text(key, Lang::en);
}

class CandidateGateTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
    }

    // Address and mailed code, up to whatever step the account's factors lead to.
    void throughCode(const QString& address)
    {
        gate.email = address;
        wait(gate.sendCode());
        ASSERT_EQ(gate.step(), Step::code) << gate.error().value_or(QString()).toStdString();
        gate.code = sandbox.lastCode(address);
        wait(gate.verifyCode());
        ASSERT_FALSE(gate.error()) << gate.error()->toStdString();
    }

    bool sessionAccepted()
    {
        const auto activity =
            wait(context->api().call<MyActivityPayload>({.shape = APIClient::Shape::bearerRead,
                                                         .path = QStringLiteral("my/activity"),
                                                         .fresh = true},
                                                        &context->candidate));
        return activity.ok();
    }

    QStringList pathsSince(qsizetype before)
    {
        const QJsonArray log = sandbox.devGet(QStringLiteral("/dev/requests")).toArray();
        QStringList paths;
        for (qsizetype i = log.size() - before - 1; i >= 0; --i)
            paths << log[i].toObject().value(QStringLiteral("path")).toString();
        return paths;
    }

    qsizetype requestCount()
    {
        return sandbox.devGet(QStringLiteral("/dev/requests")).toArray().size();
    }

    QStringList cookieNames()
    {
        QStringList names;
        for (const auto& cookie : context->session().cookieJar()->cookiesForUrl(sandbox.site()))
            names << QString::fromLatin1(cookie.name());
        return names;
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    QList<QUrl> opened;
    CandidateGate gate{context->candidate, context->appState, [this](const QUrl& url) {
                           opened << url;
                           return false;
                       }};
};

} // namespace

TEST_F(CandidateGateTest, ANewFactorIsEnrolledWithTheAuthenticatorAndTheCookieIsTheSession)
{
    gate.email = QStringLiteral("no-at-sign");
    wait(gate.sendCode());
    EXPECT_EQ(gate.error(), text(L10n::Key::errEmail));
    EXPECT_EQ(gate.step(), Step::email);

    throughCode(giorgi);
    EXPECT_EQ(gate.step(), Step::factorEnroll);
    EXPECT_FALSE(gate.mailOnly());
    EXPECT_TRUE(gate.code.isEmpty());
    EXPECT_FALSE(gate.passkeysAvailable());
    EXPECT_FALSE(sessionAccepted()); // a ticket is no session

    wait(gate.useAuthenticatorApp());
    ASSERT_EQ(gate.step(), Step::totpEnroll);
    ASSERT_FALSE(gate.totpSecret().isEmpty());
    EXPECT_EQ(opened.value(0), QUrl(otpauthUri(gate.totpSecret())));
    EXPECT_EQ(gate.groupedTotpSecret(), groupedSecret(gate.totpSecret()));

    gate.code = QStringLiteral("000000");
    wait(gate.enrollTotp());
    EXPECT_EQ(gate.error(), text(L10n::Key::errCode)); // the service's "code mismatch"
    EXPECT_EQ(gate.step(), Step::totpEnroll);
    EXPECT_FALSE(gate.busy());

    gate.code = totpCode(gate.totpSecret());
    wait(gate.enrollTotp());
    EXPECT_TRUE(gate.finished());
    EXPECT_EQ(context->candidate.email(), giorgi);
    ASSERT_TRUE(context->candidate.pendingRecovery());
    EXPECT_FALSE(context->candidate.pendingRecovery()->isEmpty());
    EXPECT_EQ(preferencesOf(*context).string(QStringLiteral("vl.candidateEmail")), giorgi);
    EXPECT_TRUE(sessionAccepted());
}

TEST_F(CandidateGateTest, ARecoveryCodeGoesOutAsTypedAndWorksOnce)
{
    throughCode(nino);
    ASSERT_EQ(gate.step(), Step::factorVerify);
    gate.code = QStringLiteral("7QK2-M4XD");
    wait(gate.verifyFactor());
    ASSERT_TRUE(gate.finished());
    const QJsonObject sent =
        sandbox.devGet(QStringLiteral("/dev/requests")).toArray()[0].toObject();
    EXPECT_EQ(sent.value(QStringLiteral("path")), QStringLiteral("/api/candidate/mfa/totp-login"));
    EXPECT_TRUE(QByteArray::fromBase64(sent.value(QStringLiteral("body")).toString().toLatin1())
                    .contains(R"("code":"7QK2-M4XD")"));
    EXPECT_EQ(context->candidate.email(), nino);

    wait(context->candidate.signOut());
    gate.reset();
    throughCode(nino);
    gate.code = QStringLiteral("7QK2-M4XD");
    wait(gate.verifyFactor());
    EXPECT_EQ(gate.error(), text(L10n::Key::errCode));
    EXPECT_FALSE(context->candidate.signedIn());
    gate.code = totpCode(ninoSecret);
    wait(gate.verifyFactor());
    EXPECT_TRUE(context->candidate.signedIn());
}

TEST_F(CandidateGateTest, MailOnlyAccountsOfferAFactorOrFinishWithoutAStep)
{
    throughCode(tamar);
    EXPECT_EQ(gate.step(), Step::factorEnroll);
    EXPECT_TRUE(gate.mailOnly());
    wait(gate.continueMailOnly());
    EXPECT_EQ(context->candidate.email(), tamar);

    auto second = makeContext({sandbox.site()});
    CandidateGate enrolled(second->candidate, second->appState, [](const QUrl&) { return true; });
    enrolled.email = levan;
    wait(enrolled.sendCode());
    enrolled.code = sandbox.lastCode(levan);
    wait(enrolled.verifyCode());
    EXPECT_TRUE(enrolled.finished());
    EXPECT_EQ(enrolled.step(), Step::code); // no stop at a factor step
    EXPECT_EQ(second->candidate.email(), levan);
}

TEST_F(CandidateGateTest, TheBrowserSignInNeedsTicketAndAddressFromItsCallback)
{
    gate.continueWithGoogle();
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0].toString(),
              sandbox.site() + QStringLiteral("/api/candidate/oauth?provider=google&app=1&hl=en"));

    const qsizetype before = requestCount();
    wait(gate.handleCallback(QUrl(QStringLiteral("velm://auth?t=abc"))));
    EXPECT_EQ(gate.error(), text(L10n::Key::errGeneric));
    EXPECT_EQ(requestCount(), before);

    EXPECT_FALSE(context->candidate.receiveCallback(QUrl(sandbox.site())));
    const QUrl callback = sandbox.oauthCallback(tamar);
    ASSERT_EQ(callback.scheme(), QStringLiteral("velm"));
    // Handed over by the desktop, as a later launch would.
    EXPECT_TRUE(context->candidate.receiveCallback(callback));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !gate.busy(); }, 5000));
    EXPECT_FALSE(gate.error());
    EXPECT_EQ(gate.email, tamar);
    EXPECT_EQ(gate.step(), Step::factorEnroll);
    EXPECT_TRUE(gate.mailOnly());
}

TEST_F(CandidateGateTest, SignOutIsImmediateThenTokensLogoutAndOnlyTheSessionCookie)
{
    throughCode(tamar);
    wait(gate.continueMailOnly());
    ASSERT_TRUE(cookieNames().contains(QStringLiteral("vl_cand")));
    QNetworkCookie other("keep", "1");
    other.setDomain(QUrl(sandbox.site()).host());
    other.setPath(QStringLiteral("/"));
    context->session().cookieJar()->insertCookie(other);
    preferencesOf(*context).setValue(QStringLiteral("vl.pushToken"), QStringLiteral("P1"));
    preferencesOf(*context).setValue(QStringLiteral("vl.voipToken"), QStringLiteral("V1"));

    const qsizetype before = requestCount();
    auto work = context->candidate.signOut();
    EXPECT_FALSE(context->candidate.signedIn());
    EXPECT_TRUE(context->candidate.declined());
    wait(std::move(work));
    EXPECT_EQ(pathsSince(before), (QStringList{QStringLiteral("/api/app/v1/push/unregister"),
                                               QStringLiteral("/api/app/v1/push/unregister"),
                                               QStringLiteral("/api/candidate/logout")}));
    EXPECT_EQ(cookieNames(), QStringList{QStringLiteral("keep")});
    EXPECT_FALSE(sessionAccepted());

    // An empty stored token is no token.
    preferencesOf(*context).setValue(QStringLiteral("vl.pushToken"), QString());
    preferencesOf(*context).remove(QStringLiteral("vl.voipToken"));
    const qsizetype again = requestCount();
    wait(context->candidate.signOut());
    EXPECT_EQ(pathsSince(again), QStringList{QStringLiteral("/api/candidate/logout")});
}

TEST_F(CandidateGateTest, ASignOutInTheSameSheetStartsTheFormAgainAtTheAddress)
{
    throughCode(tamar);
    wait(gate.continueMailOnly());
    ASSERT_TRUE(gate.finished());

    wait(context->candidate.signOut());
    EXPECT_FALSE(gate.finished());
    EXPECT_EQ(gate.step(), Step::email);
    EXPECT_TRUE(gate.email.isEmpty());
    EXPECT_TRUE(gate.ticket().isEmpty());

    // And it goes the whole way again.
    throughCode(tamar);
    wait(gate.continueMailOnly());
    EXPECT_TRUE(gate.finished());
    EXPECT_TRUE(sessionAccepted());
}

TEST(CandidateAuth, SignOutWithoutANetworkStillDropsTheSessionCookie)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    context->candidate.completeSignIn(QStringLiteral("a@b.ge"));
    QNetworkCookie session("vl_cand", "x");
    session.setDomain(QStringLiteral("127.0.0.1"));
    session.setPath(QStringLiteral("/"));
    context->session().cookieJar()->insertCookie(session);
    auto work = context->candidate.signOut();
    EXPECT_FALSE(context->candidate.email());
    wait(std::move(work));
    EXPECT_TRUE(context->session()
                    .cookieJar()
                    ->cookiesForUrl(QUrl(QStringLiteral("http://127.0.0.1:9")))
                    .isEmpty());
}

TEST(CandidateAuth, AdoptionNeedsAnEmployerAndOnlyAnAdoptedIdentityLeavesWithTheEmployer)
{
    auto context = makeContext({QStringLiteral("http://127.0.0.1:9")});
    CandidateAuth& candidate = context->candidate;
    EXPECT_EQ(wait(candidate.adopt(std::nullopt)).error(),
              APIError::server(QStringLiteral("auth")));
    EXPECT_FALSE(candidate.signedIn());
    EXPECT_FALSE(candidate.adoptedFromEmployer());

    candidate.completeSignIn(QStringLiteral("self@b.ge"));
    wait(candidate.employerSignedOut());
    EXPECT_EQ(candidate.email(), QStringLiteral("self@b.ge"));
    EXPECT_FALSE(candidate.declined());

    candidate.markAdopted();
    wait(candidate.employerSignedOut());
    EXPECT_FALSE(candidate.signedIn());
    EXPECT_FALSE(candidate.declined()); // a later employer sign-in may adopt again
    EXPECT_FALSE(preferencesOf(*context).value(QStringLiteral("vl.seekerDeclined")).toBool());

    candidate.markAdopted();
    candidate.completeSignIn(QStringLiteral("both@b.ge"));
    wait(candidate.signOut());
    EXPECT_TRUE(candidate.declined());
    EXPECT_FALSE(candidate.adoptedFromEmployer());
    // A restart reads the decline back and keeps adoption away.
    NoPasskeyAuthenticator noPasskeys;
    CandidateAuth restarted(
        {context->preferences(), context->session(), noPasskeys, context->pending},
        context->site());
    EXPECT_TRUE(restarted.declined());
    EXPECT_FALSE(restarted.signedIn());
}

TEST_F(CandidateGateTest, TheSessionCookieComesBackFromTheSecureStoreAfterARestart)
{
    throughCode(tamar);
    wait(gate.continueMailOnly());
    wait(context->settle());
    const auto kept = secretsOf(*context).items.value(QStringLiteral("cookies"));
    ASSERT_TRUE(kept.contains(QStringLiteral("vl_cand="))) << kept.toStdString();

    auto restarted = makeContext({sandbox.site()});
    secretsOf(*restarted).items.insert(QStringLiteral("cookies"), kept);
    wait(restarted->start());
    context = std::move(restarted);
    EXPECT_TRUE(sessionAccepted());

    auto corrupt = makeContext({sandbox.site()});
    secretsOf(*corrupt).items.insert(QStringLiteral("cookies"), QStringLiteral("\x01;;==\n"));
    wait(corrupt->start());
    EXPECT_TRUE(corrupt->session().cookieJar()->cookiesForUrl(sandbox.site()).isEmpty());
}
