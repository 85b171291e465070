#include "app/identity/RecoveryCodesNotice.h"

#include "app/identity/CandidateAuth.h"
#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

RecoveryCodesNotice::RecoveryCodesNotice(CandidateAuth& auth, AppState& appState, QWidget* parent)
    : QFrame(parent)
    , m_auth(auth)
    , m_appState(appState)
    , m_lead(new QLabel(this))
    , m_codes(new QLabel(this))
    , m_done(new QPushButton(this))
{
    setObjectName(QStringLiteral("vl.recoveryNotice"));
    Theme::setRole(this, "banner");
    m_lead->setWordWrap(true);
    m_codes->setObjectName(QStringLiteral("vl.recoveryNotice.codes"));
    m_codes->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_codes->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_done->setObjectName(QStringLiteral("vl.recoveryNotice.done"));
    Theme::setRole(m_done, "primary");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(m_lead);
    layout->addWidget(m_codes);
    layout->addWidget(m_done, 0, Qt::AlignLeft);
    connect(m_done, &QPushButton::clicked, this,
            [this] { m_auth.setPendingRecovery(std::nullopt); });
    connect(&m_auth, &CandidateAuth::changed, this, &RecoveryCodesNotice::refresh);
    connect(&m_appState, &AppState::langChanged, this, &RecoveryCodesNotice::refresh);
    refresh();
}

void RecoveryCodesNotice::refresh()
{
    const auto& codes = m_auth.pendingRecovery();
    // An empty list leaves nothing to save.
    setVisible(codes && !codes->isEmpty());
    if (!codes)
        return;
    const Lang lang = m_appState.lang();
    m_lead->setText(L10n::text(L10n::Key::candRecoverySave, lang));
    m_codes->setText(codes->join(u'\n'));
    m_done->setText(L10n::text(L10n::Key::recoveryDone, lang));
}

} // namespace vl
