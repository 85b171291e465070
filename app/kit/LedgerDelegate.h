#pragma once

#include "core/l10n/Lang.h"

#include <QStyledItemDelegate>
#include <functional>

namespace vl {

// Paints the board's rows: a day head with its count, or a listing with its title, employer,
// place and pay, and its "New", "Featured" and "Direct" tags. Painting only, no widgets, so a
// list of many thousands of rows scrolls as smoothly as a few.
class LedgerDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using Label = std::function<QString(const QString& key)>;

    static constexpr int jobHeight = 66;
    static constexpr int headHeight = 36;

    explicit LedgerDelegate(QObject* parent = nullptr);

    void setLang(Lang lang) { m_lang = lang; }
    void setCityLabel(Label label) { m_cityLabel = std::move(label); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintHead(QPainter* painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;
    void paintJob(QPainter* painter, const QStyleOptionViewItem& option,
                  const QModelIndex& index) const;

    Lang m_lang = Lang::ka;
    Label m_cityLabel;
};

} // namespace vl
