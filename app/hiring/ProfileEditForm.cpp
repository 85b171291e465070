#include "app/hiring/ProfileEditForm.h"

#include "app/service/APIClient.h"
#include "app/shell/AppState.h"
#include "app/shell/AuthManager.h"
#include "core/l10n/L10n.h"

#include <QPointer>

namespace vl {

ProfileEditForm::ProfileEditForm(const APIClient& api, AuthManager& auth, AppState& appState,
                                 QObject* parent)
    : QObject(parent)
    , m_api(api)
    , m_auth(auth)
    , m_appState(appState)
{
    if (const auto& me = m_auth.me()) {
        name = me->employer.name;
        website = me->employer.website;
        phone = me->employer.phone;
    }
}

QCoro::Task<> ProfileEditForm::save()
{
    if (m_working)
        co_return;
    m_working = true;
    m_note.reset();
    Q_EMIT changed();
    QPointer self(this);
    const auto saved = co_await m_api.updateMe(name, website, phone, this);
    if (!self)
        co_return;
    m_note = L10n::text(saved ? L10n::Key::saved : L10n::Key::errGeneric, m_appState.lang());
    if (saved)
        co_await m_auth.refresh();
    if (!self)
        co_return;
    m_working = false;
    Q_EMIT changed();
}

} // namespace vl
