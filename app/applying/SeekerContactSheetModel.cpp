#include "app/applying/SeekerContactSheetModel.h"

#include "app/shell/AppState.h"
#include "app/shell/AuthManager.h"
#include "core/l10n/L10n.h"

#include <QPointer>

namespace vl {

SeekerContactSheetModel::SeekerContactSheetModel(ApplyServices services, SeekerDetail seeker,
                                                 QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_seeker(std::move(seeker))
{
    connect(&m_services.employer, &AuthManager::sessionChanged, this,
            &SeekerContactSheetModel::changed);
}

bool SeekerContactSheetModel::needsSignIn() const
{
    return !m_services.employer.hiring();
}

void SeekerContactSheetModel::askSignIn()
{
    m_showSignIn = true;
    Q_EMIT changed();
}

QCoro::Task<> SeekerContactSheetModel::send()
{
    if (m_working || m_sent || needsSignIn())
        co_return;
    const Lang lang = m_services.state.lang();
    if (message.trimmed().isEmpty()) {
        m_error = L10n::text(L10n::Key::errRequired, lang);
        Q_EMIT changed();
        co_return;
    }
    m_error.reset();
    m_working = true;
    Q_EMIT changed();
    QPointer self(this);
    const auto result =
        co_await m_services.api.contactSeeker(m_seeker.ref, message.trimmed(), this);
    if (!self)
        co_return;
    m_working = false;
    if (result) {
        m_sent = true;
        m_threadId = result->threadId;
    } else {
        m_error = result.error().message(lang);
    }
    Q_EMIT changed();
}

} // namespace vl
