#pragma once

#include <QStyledItemDelegate>

namespace vl {

// Paints a saved listing: its title over the employer and the place.
class SavedRowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    enum Role { TitleRole = Qt::UserRole + 10, PlaceRole };

    static constexpr int rowHeight = 62;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace vl
