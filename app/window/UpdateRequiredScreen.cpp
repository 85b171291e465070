#include "app/window/UpdateRequiredScreen.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QDesktopServices>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace vl {

UpdateRequiredScreen::UpdateRequiredScreen(UpdateRequired gate, bool prerelease, AppState& appState,
                                           QWidget* parent)
    : QWidget(parent)
    , m_gate(std::move(gate))
    , m_prerelease(prerelease)
    , m_appState(appState)
{
    setObjectName(QStringLiteral("vl.updateRequired"));
    auto* card = new QFrame(this);
    Theme::setRole(card, "card");
    card->setFixedWidth(480);

    auto* mark = new QLabel(QStringLiteral("Velmora"), card);
    Theme::setRole(mark, "brand");
    m_title = new QLabel(card);
    m_title->setObjectName(QStringLiteral("vl.updateRequired.title"));
    Theme::setRole(m_title, "title");
    m_title->setWordWrap(true);
    m_body = new QLabel(card);
    m_body->setObjectName(QStringLiteral("vl.updateRequired.body"));
    Theme::setRole(m_body, "subtitle");
    m_body->setWordWrap(true);
    m_update = new QPushButton(card);
    m_update->setObjectName(QStringLiteral("vl.updateRequired.update"));
    Theme::setRole(m_update, "primary");
    m_update->setDefault(true);

    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(36, 32, 36, 32);
    inside->setSpacing(12);
    inside->addWidget(mark);
    inside->addSpacing(8);
    inside->addWidget(m_title);
    inside->addWidget(m_body);
    inside->addSpacing(12);
    inside->addWidget(m_update, 0, Qt::AlignLeft);

    // Centred by stretches rather than by alignment, so the card's height follows its own
    // width and the wrapped body is never cut.
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(card);
    row->addStretch(1);
    auto* outside = new QVBoxLayout(this);
    outside->setContentsMargins(32, 32, 32, 32);
    outside->addStretch(1);
    outside->addLayout(row);
    outside->addStretch(2);

    connect(m_update, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl(gateUrl(m_gate, m_prerelease))); });
    connect(&m_appState, &AppState::langChanged, this, &UpdateRequiredScreen::retext);
    retext();
}

void UpdateRequiredScreen::retext()
{
    const Lang lang = m_appState.lang();
    m_title->setText(L10n::text(L10n::Key::updateTitle, lang));
    m_body->setText(L10n::text(L10n::Key::updateBody, lang));
    m_update->setText(L10n::text(L10n::Key::updateButton, lang));
}

} // namespace vl
