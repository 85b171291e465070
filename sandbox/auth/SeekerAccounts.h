#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace vl {

class Clock;
class Store;

// Job seeker accounts: the address, the authenticator secret when a second factor is set,
// whether the account gets by with mail alone, and one-time recovery codes.
class SeekerAccounts {
public:
    static constexpr int recoveryCount = 10;

    SeekerAccounts(Store& store, const Clock& clock);

    std::optional<qint64> byEmail(const QString& email) const;
    // The account of an address, made at its first verified sign-in; a new account must add
    // a second factor.
    qint64 findOrCreate(const QString& email);
    QString emailOf(qint64 id) const;
    // Empty when the account has no authenticator.
    QString secretOf(qint64 id) const;
    bool mailOnly(qint64 id) const;

    // Sets the authenticator and replaces the recovery codes; returns the new codes.
    QStringList enroll(qint64 id, const QString& secret);
    // Stores given recovery codes, for seeded accounts.
    void addRecoveryCodes(qint64 id, const QStringList& codes);
    // Uses up a recovery code; false when it is unknown or already used. Blanks, hyphens and
    // case don't matter.
    bool redeemRecovery(qint64 id, const QString& code);

private:
    qint64 create(const QString& email);
    static QString normalise(const QString& code);

    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
