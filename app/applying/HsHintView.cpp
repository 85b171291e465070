#include "app/applying/HsHintView.h"

#include "app/kit/Make.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace vl {

HsHintView::HsHintView(QWidget* parent)
    : QFrame(parent)
{
    Theme::setRole(this, "card");
    auto* layout = new QVBoxLayout(this);
    m_title = make::label(this, "name");
    m_sub = make::label(this, "caption");
    m_ticket = new QCheckBox(this);
    layout->addWidget(m_title);
    layout->addWidget(m_sub);
    layout->addWidget(m_ticket);
    connect(m_ticket, &QCheckBox::toggled, this, &HsHintView::useTicketChanged);
}

void HsHintView::show(const HsHint& hint, bool useTicket)
{
    m_title->setText(hint.title);
    m_sub->setText(hint.sub);
    m_ticket->setVisible(hint.offersTicket());
    m_ticket->setText(QStringLiteral("🎟 × %1").arg(hint.tickets));
    const QSignalBlocker quiet(m_ticket);
    m_ticket->setChecked(useTicket);
}

} // namespace vl
