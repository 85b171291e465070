#include "app/kit/SidebarDelegate.h"

#include "app/kit/Palette.h"

#include <QPainter>

namespace vl {

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {option.rect.width(), index.data(GroupRole).toBool() ? 36 : 34};
}

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QString text = index.data(Qt::DisplayRole).toString();
    if (index.data(GroupRole).toBool()) {
        QFont font = option.font;
        font.setPointSizeF(font.pointSizeF() * 0.82);
        font.setWeight(QFont::Bold);
        font.setCapitalization(QFont::AllUppercase);
        painter->setFont(font);
        painter->setPen(palette::muted());
        painter->drawText(option.rect.adjusted(22, 10, -12, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          text);
        painter->restore();
        return;
    }

    const QRect row = option.rect.adjusted(10, 1, -10, -1);
    if (option.state & QStyle::State_Selected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette::current().chosen);
        painter->drawRoundedRect(row, 8, 8);
    } else if (option.state & QStyle::State_MouseOver) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette::current().pressed);
        painter->drawRoundedRect(row, 8, 8);
    }
    QRect textRect = row.adjusted(12, 0, -10, 0);
    const int badge = index.data(BadgeRole).toInt();
    if (badge > 0) {
        QFont font = option.font;
        font.setPointSizeF(font.pointSizeF() * 0.85);
        font.setWeight(QFont::Bold);
        const QString number = QString::number(badge);
        const QFontMetrics metrics(font);
        const int width = std::max(metrics.horizontalAdvance(number) + 12, 20);
        const QRect pill(textRect.right() - width, row.center().y() - 10, width, 20);
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette::accent());
        painter->drawRoundedRect(pill, 10, 10);
        painter->setFont(font);
        painter->setPen(palette::current().onAccent);
        painter->drawText(pill, Qt::AlignCenter, number);
        textRect.setRight(pill.left() - 6);
    }
    QFont font = option.font;
    if (option.state & QStyle::State_Selected)
        font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen((option.state & QStyle::State_Selected) ? palette::accent() : palette::ink());
    painter->drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, textRect.width()));
    painter->restore();
}

} // namespace vl
