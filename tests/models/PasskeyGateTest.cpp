#include "app/identity/CandidateGate.h"
#include "core/identity/WebAuthn.h"
#include "core/l10n/L10n.h"
#include "tests/support/SandboxProcess.h"
#include "tests/support/TestContext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace vl;
using namespace vl::test;

namespace {

// An authenticator that ends every ceremony as told, and remembers what it was asked.
class ScriptedPasskeys final : public PasskeyAuthenticator {
public:
    PasskeyOutcome outcome = PasskeyCanceled{};
    QString relyingParty;
    QString name;
    bool preferImmediate = false;
    bool userVerification = false;

    bool available() const override { return true; }
    QCoro::Task<PasskeyOutcome> createCredential(QString party, QByteArray, QString account,
                                                 QByteArray) override
    {
        relyingParty = party;
        name = account;
        co_return outcome;
    }
    QCoro::Task<PasskeyOutcome> getAssertion(QString party, QByteArray, bool immediate,
                                             bool verification) override
    {
        relyingParty = party;
        preferImmediate = immediate;
        userVerification = verification;
        co_return outcome;
    }
};

class PasskeyGate : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.started()) << sandbox.output().toStdString();
        context->appState.setLang(Lang::en);
    }

    QString text(L10n::Key key) { return L10n::text(key, Lang::en); }

    QJsonObject lastRequest()
    {
        return sandbox.devGet(QStringLiteral("/dev/requests")).toArray()[0].toObject();
    }

    QJsonObject lastBody()
    {
        return QJsonDocument::fromJson(
                   QByteArray::fromBase64(
                       lastRequest().value(QStringLiteral("body")).toString().toLatin1()))
            .object();
    }

    SandboxProcess sandbox;
    std::unique_ptr<AppContext> context = makeContext({sandbox.site()});
    ScriptedPasskeys passkeys;
    CandidateAuth auth{{context->preferences(), context->session(), passkeys, context->pending},
                       sandbox.site()};
    CandidateGate gate{auth, context->appState, [](const QUrl&) { return true; }};
};

} // namespace

TEST_F(PasskeyGate, TheEmailStepTellsANoPasskeyFromAFailedOne)
{
    EXPECT_TRUE(gate.passkeysAvailable());
    wait(gate.signInWithPasskey());
    EXPECT_TRUE(gate.noPasskey()); // a cancel reads as no passkey here
    EXPECT_FALSE(gate.error());
    EXPECT_TRUE(passkeys.preferImmediate);
    EXPECT_TRUE(passkeys.userVerification);
    EXPECT_EQ(passkeys.relyingParty, QStringLiteral("127.0.0.1"));

    passkeys.outcome = PasskeyFailed{};
    wait(gate.signInWithPasskey());
    EXPECT_FALSE(gate.noPasskey());
    EXPECT_EQ(gate.error(), text(L10n::Key::passkeyFailed));

    // The service knows no such credential: no passkey either, with the bytes sent unpadded.
    passkeys.outcome = PasskeyAssertion{"id", "data", "{}", QByteArray::fromHex("fbff")};
    wait(gate.signInWithPasskey());
    EXPECT_TRUE(gate.noPasskey());
    EXPECT_FALSE(gate.error());
    EXPECT_EQ(lastBody().value(QStringLiteral("signature")), QStringLiteral("-_8"));
    EXPECT_FALSE(lastBody().value(QStringLiteral("nonce")).toString().isEmpty());

    // A registration where an assertion was asked for is the service's general failure.
    passkeys.outcome = PasskeyRegistration{"att", "{}"};
    wait(gate.signInWithPasskey());
    EXPECT_EQ(gate.error(), text(L10n::Key::errGeneric));
    EXPECT_FALSE(auth.signedIn());
}

TEST_F(PasskeyGate, CreatingAPasskeyCancelledShowsTheGeneralFailureAndRegistrationIsLabelled)
{
    const QString email = QStringLiteral("giorgi.kapanadze@gmail.com");
    gate.email = email;
    wait(gate.sendCode());
    gate.code = sandbox.lastCode(email);
    wait(gate.verifyCode());
    ASSERT_EQ(gate.step(), CandidateGate::Step::factorEnroll);

    wait(gate.createPasskey());
    EXPECT_EQ(gate.error(), text(L10n::Key::errGeneric));
    EXPECT_EQ(gate.step(), CandidateGate::Step::factorEnroll);
    EXPECT_EQ(passkeys.name, email);

    passkeys.outcome = PasskeyRegistration{QByteArray(), "{}"};
    wait(gate.createPasskey());
    EXPECT_EQ(gate.error(), text(L10n::Key::errGeneric)); // no attestation: nothing is sent

    passkeys.outcome = PasskeyRegistration{"att", "{}"};
    wait(gate.createPasskey());
    EXPECT_EQ(lastRequest().value(QStringLiteral("path")),
              QStringLiteral("/api/candidate/mfa/reg-verify"));
    EXPECT_EQ(lastBody().value(QStringLiteral("label")), QStringLiteral("iPhone passkey"));
    EXPECT_EQ(lastBody().value(QStringLiteral("attestationObject")), encodeWebAuthn("att"));
    EXPECT_TRUE(gate.error()); // the sandbox holds no passkeys
    EXPECT_FALSE(auth.signedIn());
}
