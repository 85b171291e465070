#include "app/kit/SuccessStamp.h"

#include "app/applying/HsMomentView.h"
#include "app/kit/Make.h"

#include <QVBoxLayout>

namespace vl {

SuccessStamp::SuccessStamp(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("successStamp"));
    auto* layout = new QVBoxLayout(this);
    auto* mark = make::label(this, "display");
    mark->setText(QStringLiteral("✓"));
    m_text = make::label(this, "title");
    m_moment = new HsMomentView(this);
    m_close = make::button(this, "primary");
    layout->addWidget(mark);
    layout->addWidget(m_text);
    layout->addWidget(m_moment);
    layout->addWidget(m_close);
    layout->addStretch();
    connect(m_close, &QPushButton::clicked, this, &SuccessStamp::closed);
}

void SuccessStamp::show(const QString& sent, const std::optional<HsMoment>& moment,
                        const QString& close)
{
    m_text->setText(sent);
    m_moment->setVisible(moment.has_value());
    if (moment)
        m_moment->show(*moment);
    m_close->setText(close);
}

} // namespace vl
