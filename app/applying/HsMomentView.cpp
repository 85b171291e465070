#include "app/applying/HsMomentView.h"

#include "app/kit/Make.h"

#include <QProgressBar>
#include <QVBoxLayout>

namespace vl {

HsMomentView::HsMomentView(QWidget* parent)
    : QFrame(parent)
{
    Theme::setRole(this, "card");
    auto* layout = new QVBoxLayout(this);
    m_lines = make::label(this, "plain");
    m_goal = new QProgressBar(this);
    m_goal->setRange(0, 100);
    m_chips = make::label(this, "caption");
    m_see = make::label(this, "caption");
    layout->addWidget(m_lines);
    layout->addWidget(m_goal);
    layout->addWidget(m_chips);
    layout->addWidget(m_see);
}

void HsMomentView::show(const HsMoment& moment)
{
    QStringList lines;
    for (const QString* text :
         {&moment.gold, &moment.rank, &moment.move, &moment.points, &moment.passed, &moment.goal}) {
        if (!text->isEmpty())
            lines << *text;
    }
    m_lines->setText(lines.join(u'\n'));
    m_goal->setValue(moment.goalPct);
    QStringList chips(moment.chips.begin(), moment.chips.end());
    m_chips->setText(chips.join(QStringLiteral("  ·  ")));
    m_see->setText(moment.see);
}

} // namespace vl
