#include "app/kit/UndoBar.h"

#include "app/kit/Theme.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vl {

UndoBar::UndoBar(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("vl.undo"));
    Theme::setRole(this, "banner");
    m_what = new QLabel(this);
    m_what->setObjectName(QStringLiteral("vl.undo.what"));
    m_what->setTextFormat(Qt::PlainText);
    m_undo = new QPushButton(this);
    m_undo->setObjectName(QStringLiteral("vl.undo.button"));
    Theme::setRole(m_undo, "link");
    connect(m_undo, &QPushButton::clicked, this, [this] {
        m_timer.stop();
        hide();
        Q_EMIT undoRequested();
    });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(m_what, 1);
    layout->addWidget(m_undo);

    m_timer.setSingleShot(true);
    m_timer.setInterval(shownMs);
    connect(&m_timer, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void UndoBar::setButtonText(const QString& text)
{
    m_undo->setText(text);
}

void UndoBar::offer(const QString& what)
{
    m_what->setText(what);
    show();
    m_timer.start();
    QAccessibleEvent event(m_what, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace vl
