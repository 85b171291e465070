#include "app/shell/AccountMenuModel.h"

#include "app/identity/CandidateAuth.h"
#include "app/platform/Preferences.h"
#include "app/shell/AuthManager.h"

namespace vl {

AccountMenuModel::AccountMenuModel(AuthManager& auth, CandidateAuth& candidate,
                                   Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_auth(auth)
    , m_candidate(candidate)
    , m_preferences(preferences)
{
    connect(&m_auth, &AuthManager::sessionChanged, this, &AccountMenuModel::changed);
    connect(&m_auth, &AuthManager::meChanged, this, &AccountMenuModel::changed);
    connect(&m_candidate, &CandidateAuth::changed, this, &AccountMenuModel::changed);
}

bool AccountMenuModel::signedOut() const
{
    return !m_auth.hiring() && !m_candidate.signedIn();
}

QString AccountMenuModel::name() const
{
    if (m_auth.me())
        return m_auth.me()->employer.name;
    return m_candidate.email().value_or(QString());
}

std::optional<L10n::Key> AccountMenuModel::role() const
{
    if (m_auth.hiring() && m_candidate.signedIn())
        return L10n::Key::macAsBoth;
    if (m_auth.hiring())
        return L10n::Key::macAsEmployer;
    if (m_candidate.signedIn())
        return L10n::Key::macAsSeeker;
    return std::nullopt;
}

bool AccountMenuModel::offersEmployerSignIn() const
{
    return !m_auth.hiring();
}

std::optional<L10n::Key> AccountMenuModel::employerSignOut() const
{
    if (!m_auth.hiring())
        return std::nullopt;
    return m_candidate.signedIn() ? L10n::Key::macSignOutEmployer : L10n::Key::signOut;
}

QCoro::Task<> AccountMenuModel::signOutEmployer()
{
    co_await m_auth.logOut();
}

bool AccountMenuModel::offersSeekerSignIn() const
{
    return !m_candidate.signedIn();
}

std::vector<L10n::Key> AccountMenuModel::signOutEntries() const
{
    using L10n::Key;
    if (m_auth.hiring() && m_candidate.signedIn())
        return {Key::macSignOutEmployer, Key::macSignOutSeeker, Key::macSignOutBoth};
    if (m_auth.hiring() || m_candidate.signedIn())
        return {Key::signOut};
    return {};
}

QCoro::Task<> AccountMenuModel::signOut(L10n::Key entry)
{
    using L10n::Key;
    const bool seeker = entry == Key::macSignOutSeeker || entry == Key::macSignOutBoth ||
                        (entry == Key::signOut && !m_auth.hiring());
    const bool employer = entry == Key::macSignOutEmployer || entry == Key::macSignOutBoth ||
                          (entry == Key::signOut && m_auth.hiring());
    auto seekerGone = seeker ? m_candidate.signOut() : QCoro::Task<>();
    if (employer)
        co_await m_auth.logOut();
    if (seeker)
        co_await std::move(seekerGone);
}

QString AccountMenuModel::workingAs() const
{
    return m_preferences.string(QStringLiteral("vl.role"));
}

void AccountMenuModel::setWorkingAs(const QString& role)
{
    m_preferences.setValue(QStringLiteral("vl.role"), role);
    Q_EMIT changed();
}

} // namespace vl
