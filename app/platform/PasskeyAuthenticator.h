#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <variant>

namespace vl {

// What a passkey ceremony ends with: a new credential, a signed assertion, the person's cancel
// (also what a platform reports when it holds no credential for the site), or another failure.
struct PasskeyRegistration {
    QByteArray attestationObject;
    QByteArray clientDataJSON;
};

struct PasskeyAssertion {
    QByteArray credentialId;
    QByteArray authenticatorData;
    QByteArray clientDataJSON;
    QByteArray signature;
};

struct PasskeyCanceled {};

struct PasskeyFailed {};

using PasskeyOutcome =
    std::variant<PasskeyRegistration, PasskeyAssertion, PasskeyCanceled, PasskeyFailed>;

// The platform's passkey authenticator for the service's domain.
class PasskeyAuthenticator {
public:
    virtual ~PasskeyAuthenticator() = default;

    // Whether this computer can hold passkeys at all; without one, no passkey button shows.
    virtual bool available() const = 0;
    virtual QCoro::Task<PasskeyOutcome> createCredential(QString relyingParty, QByteArray challenge,
                                                         QString name, QByteArray userId) = 0;
    // `preferImmediatelyAvailable` fails at once when no local credential exists, rather than
    // offering another device; `requireUserVerification` asks for the person, not just presence.
    virtual QCoro::Task<PasskeyOutcome> getAssertion(QString relyingParty, QByteArray challenge,
                                                     bool preferImmediatelyAvailable,
                                                     bool requireUserVerification) = 0;
};

// The Linux build has no platform authenticator: every ceremony fails plainly, and the passkey
// buttons stay hidden.
class NoPasskeyAuthenticator final : public PasskeyAuthenticator {
public:
    bool available() const override { return false; }
    QCoro::Task<PasskeyOutcome> createCredential(QString, QByteArray, QString, QByteArray) override
    {
        co_return PasskeyFailed{};
    }
    QCoro::Task<PasskeyOutcome> getAssertion(QString, QByteArray, bool, bool) override
    {
        co_return PasskeyFailed{};
    }
};

} // namespace vl
