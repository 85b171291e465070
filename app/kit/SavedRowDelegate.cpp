#include "app/kit/SavedRowDelegate.h"

#include "app/kit/Palette.h"

#include <QPainter>

namespace vl {

namespace {

using namespace palette;

} // namespace

QSize SavedRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {1, rowHeight};
}

void SavedRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    painter->save();
    const QRect rect = option.rect;
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(rect, selected());
        painter->fillRect(QRect(rect.left(), rect.top() + 8, 3, rect.height() - 16), accent());
    } else if (option.state & QStyle::State_MouseOver) {
        painter->fillRect(rect, hover());
    }
    painter->setPen(rule());
    painter->drawLine(rect.left() + 14, rect.bottom(), rect.right() - 14, rect.bottom());

    const QRect content = rect.adjusted(16, 10, -16, -10);
    QFont title = option.font;
    title.setPointSizeF(title.pointSizeF() * 1.08);
    title.setWeight(QFont::DemiBold);
    painter->setFont(title);
    painter->setPen(ink());
    const QRect titleRect(content.left(), content.top(), content.width(), 22);
    painter->drawText(titleRect, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(title).elidedText(index.data(TitleRole).toString(),
                                                     Qt::ElideRight, titleRect.width()));
    painter->setFont(option.font);
    painter->setPen(muted());
    const QRect placeRect(content.left(), content.top() + 24, content.width(), 20);
    painter->drawText(
        placeRect, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics(option.font)
            .elidedText(index.data(PlaceRole).toString(), Qt::ElideRight, placeRect.width()));
    painter->restore();
}

} // namespace vl
