#pragma once

#include <QStyledItemDelegate>

namespace vl {

// Paints the sidebar: a group's small title, or a section row with its count in a pill on the
// right when the count is above zero.
class SidebarDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    enum Role { GroupRole = Qt::UserRole + 1, SectionRole, BadgeRole };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace vl
