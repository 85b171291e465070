#include "app/window/ReviewNotice.h"

#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "app/shell/ReviewAsk.h"
#include "core/l10n/L10n.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vl {

ReviewNotice::ReviewNotice(ReviewAsk& review, AppState& appState, std::function<QUrl()> reviewPage,
                           QWidget* parent)
    : QFrame(parent)
    , m_review(review)
    , m_appState(appState)
    , m_reviewPage(std::move(reviewPage))
    , m_title(new QLabel(this))
    , m_body(new QLabel(this))
    , m_write(new QPushButton(this))
    , m_later(new QPushButton(this))
{
    setObjectName(QStringLiteral("vl.reviewNotice"));
    Theme::setRole(this, "card");
    Theme::setRole(m_title, "subtitle");
    m_body->setWordWrap(true);
    m_write->setObjectName(QStringLiteral("vl.reviewNotice.write"));
    Theme::setRole(m_write, "primary");
    m_later->setObjectName(QStringLiteral("vl.reviewNotice.later"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_write);
    buttons->addWidget(m_later);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(m_title);
    layout->addWidget(m_body);
    layout->addLayout(buttons);
    connect(m_write, &QPushButton::clicked, this, [this] {
        QDesktopServices::openUrl(m_reviewPage());
        m_review.reviewWritten();
    });
    connect(m_later, &QPushButton::clicked, this, [this] { m_review.hideCard(); });
    connect(&m_review, &ReviewAsk::changed, this, &ReviewNotice::refresh);
    connect(&m_appState, &AppState::langChanged, this, &ReviewNotice::refresh);
    refresh();
}

void ReviewNotice::refresh()
{
    setVisible(m_review.cardVisible() || m_review.pending());
    const Lang lang = m_appState.lang();
    m_title->setText(L10n::text(L10n::Key::rateTitle, lang));
    m_body->setText(L10n::text(L10n::Key::rateBody, lang));
    m_write->setText(L10n::text(L10n::Key::rateWrite, lang));
    m_later->setText(L10n::text(L10n::Key::rateLater, lang));
}

} // namespace vl
