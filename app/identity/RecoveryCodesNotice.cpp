#include "app/identity/RecoveryCodesNotice.h"

#include "app/identity/CandidateAuth.h"
#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace vl {

RecoveryCodesNotice::RecoveryCodesNotice(CandidateAuth& auth, AppState& appState, QWidget* parent)
    : QFrame(parent)
    , m_auth(auth)
    , m_appState(appState)
    , m_lead(new QLabel(this))
    , m_codes(new QLabel(this))
    , m_copy(new QPushButton(this))
    , m_saveFile(new QPushButton(this))
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
    m_copy->setObjectName(QStringLiteral("vl.recoveryNotice.copy"));
    m_saveFile->setObjectName(QStringLiteral("vl.recoveryNotice.save"));
    connect(m_copy, &QPushButton::clicked, this, [this] {
        if (const auto& codes = m_auth.pendingRecovery())
            QGuiApplication::clipboard()->setText(codes->join(u'\n'));
    });
    connect(m_saveFile, &QPushButton::clicked, this, &RecoveryCodesNotice::saveToFile);
    auto* actions = new QHBoxLayout;
    actions->setSpacing(8);
    actions->addWidget(m_done);
    actions->addWidget(m_copy);
    actions->addWidget(m_saveFile);
    actions->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(12);
    layout->addWidget(m_lead);
    layout->addWidget(m_codes);
    layout->addLayout(actions);
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
    m_copy->setText(L10n::text(L10n::Key::msgCopy, lang));
    m_saveFile->setText(L10n::text(L10n::Key::save, lang) + QStringLiteral("…"));
}

void RecoveryCodesNotice::saveToFile()
{
    const auto& codes = m_auth.pendingRecovery();
    if (!codes)
        return;
    const QString path = QFileDialog::getSaveFileName(
        this, L10n::text(L10n::Key::save, m_appState.lang()),
        QDir::home().filePath(QStringLiteral("velmora-recovery-codes.txt")));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.write(codes->join(u'\n').toUtf8() + '\n');
        file.commit();
    }
}

} // namespace vl
