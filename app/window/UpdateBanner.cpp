#include "app/window/UpdateBanner.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "app/shell/UpdateBannerModel.h"
#include "core/l10n/L10n.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>

namespace vl {

UpdateBanner::UpdateBanner(UpdateBannerModel& model, AppState& appState, QWidget* parent)
    : QFrame(parent)
    , m_model(model)
    , m_appState(appState)
    , m_text(new QLabel(this))
    , m_get(new QPushButton(this))
    , m_dismiss(new QToolButton(this))
{
    setObjectName(QStringLiteral("vl.updateBanner"));
    Theme::setRole(this, "banner");
    m_text->setObjectName(QStringLiteral("vl.updateBanner.text"));
    m_text->setWordWrap(true);
    Theme::setRole(m_text, "name");
    m_get->setObjectName(QStringLiteral("vl.updateBanner.get"));
    Theme::setRole(m_get, "primary");
    m_dismiss->setObjectName(QStringLiteral("vl.updateBanner.dismiss"));
    m_dismiss->setText(QStringLiteral("✕"));
    Theme::setRole(m_dismiss, "dismiss");

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(24, 10, 16, 10);
    row->setSpacing(12);
    row->addWidget(m_text, 1);
    row->addWidget(m_get);
    row->addWidget(m_dismiss);

    connect(m_get, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl(m_model.url())); });
    connect(m_dismiss, &QToolButton::clicked, &m_model, &UpdateBannerModel::dismiss);
    connect(&m_model, &UpdateBannerModel::changed, this, &UpdateBanner::refresh);
    connect(&m_appState, &AppState::langChanged, this, &UpdateBanner::retext);
    retext();
    refresh();
}

void UpdateBanner::retext()
{
    const Lang lang = m_appState.lang();
    m_text->setText(L10n::text(L10n::Key::updateAvailable, lang));
    m_get->setText(L10n::text(L10n::Key::updateGet, lang));
    m_dismiss->setToolTip(L10n::text(L10n::Key::close, lang));
    m_dismiss->setAccessibleName(L10n::text(L10n::Key::close, lang));
}

void UpdateBanner::refresh()
{
    setVisible(m_model.visible());
}

} // namespace vl
