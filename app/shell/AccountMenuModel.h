#pragma once

#include "core/l10n/L10nKey.h"

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <optional>
#include <vector>

namespace vl {

class AuthManager;
class CandidateAuth;
class Preferences;

// What the account area at the sidebar's foot shows: who is signed in and in which role, the
// employer's way in while there is no employer session, and the way out of it while there is.
class AccountMenuModel : public QObject {
    Q_OBJECT
public:
    AccountMenuModel(AuthManager& auth, CandidateAuth& candidate, Preferences& preferences,
                     QObject* parent = nullptr);

    // Neither an employer session nor a job seeker identity.
    bool signedOut() const;
    // The employer's name once `me` is loaded, else the job seeker's address, else nothing.
    QString name() const;
    std::optional<L10n::Key> role() const;
    bool offersEmployerSignIn() const;
    // "Sign out" while the employer is the only identity, "Sign out of hiring" beside a job
    // seeker; nothing without an employer session.
    std::optional<L10n::Key> employerSignOut() const;
    QCoro::Task<> signOutEmployer();

    bool offersSeekerSignIn() const;
    // With one identity a single "Sign out" stands for it; with both, each side and both.
    std::vector<L10n::Key> signOutEntries() const;
    // Runs the entry's sign-out; the job seeker's side goes first when both do, so that it
    // counts as left on purpose.
    QCoro::Task<> signOut(L10n::Key entry);
    // The side the account panel shows, stored under vl.role: "work", "hiring" or "".
    QString workingAs() const;
    void setWorkingAs(const QString& role);

Q_SIGNALS:
    void changed();

private:
    AuthManager& m_auth;
    CandidateAuth& m_candidate;
    Preferences& m_preferences;
};

} // namespace vl
