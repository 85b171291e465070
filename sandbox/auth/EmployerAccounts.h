#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;

// Employer accounts and their bearer tokens.
class EmployerAccounts {
public:
    EmployerAccounts(Store& store, const Clock& clock);

    std::optional<qint64> byToken(const QString& token) const;
    std::optional<qint64> byEmail(const QString& email) const;
    QString emailOf(qint64 id) const;
    // A new account for an address at its first verified sign-in, named after the part of
    // the address before "@".
    qint64 create(const QString& email, const QString& locale);
    void setLocale(qint64 id, const QString& locale);
    void update(qint64 id, const QString& name, const QString& website, const QString& phone);
    // Closes the account's listings and forgets the account and its sessions.
    void remove(qint64 id);

    QString issueToken(qint64 id);
    void revoke(const QString& token);

    // EmployerProfile
    QJsonObject profile(qint64 id) const;
    // MePayload; `origin` is where the paid plan is managed.
    QJsonObject me(qint64 id, const QString& origin) const;

private:
    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
