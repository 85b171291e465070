#include "app/kit/LedgerDelegate.h"

#include "app/discovery/LedgerModel.h"
#include "app/kit/Palette.h"
#include "core/discovery/JobSummary.h"
#include "core/format/Format.h"
#include "core/l10n/L10n.h"

#include <QPainter>

namespace vl {

namespace {

using namespace palette;

// A rounded tag drawn from the right edge leftwards; returns the new right edge.
int drawTag(QPainter* painter, int right, int centerY, const QString& text, const QColor& fg,
            const QColor& bg)
{
    QFont font = painter->font();
    font.setPointSizeF(font.pointSizeF() * 0.82);
    font.setWeight(QFont::DemiBold);
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text) + 14;
    const int height = metrics.height() + 4;
    const QRect box(right - width, centerY - height / 2, width, height);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(bg);
    painter->drawRoundedRect(box, height / 2.0, height / 2.0);
    painter->setFont(font);
    painter->setPen(fg);
    painter->drawText(box, Qt::AlignCenter, text);
    painter->restore();
    return box.left() - 6;
}

} // namespace

LedgerDelegate::LedgerDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

// Rows ask for no width of their own; the list gives each the viewport's.
QSize LedgerDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const bool head = index.data(LedgerModel::IsHeadRole).toBool();
    return {1, head ? headHeight : jobHeight};
}

void LedgerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    if (index.data(LedgerModel::IsHeadRole).toBool())
        paintHead(painter, option, index);
    else
        paintJob(painter, option, index);
}

void LedgerDelegate::paintHead(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    painter->save();
    const QRect rect = option.rect.adjusted(18, 0, -18, 0);
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * 0.85);
    font.setWeight(QFont::Bold);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    painter->setFont(font);
    painter->setPen(muted());
    const QString text = index.data(LedgerModel::HeadTextRole).toString();
    const QRect textRect = rect.adjusted(0, 12, 0, 0);
    painter->drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter, text);
    if (!index.data(LedgerModel::PinnedHeadRole).toBool()) {
        const int used = QFontMetrics(font).horizontalAdvance(text);
        painter->setPen(accent());
        painter->drawText(textRect.adjusted(used + 8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          QString::number(index.data(LedgerModel::HeadCountRole).toInt()));
    }
    painter->restore();
}

void LedgerDelegate::paintJob(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const auto* job =
        reinterpret_cast<const JobSummary*>(index.data(LedgerModel::JobRole).value<quintptr>());
    if (!job)
        return;
    painter->save();
    const QRect rect = option.rect;
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(rect, selected());
        painter->fillRect(QRect(rect.left(), rect.top() + 8, 3, rect.height() - 16), accent());
    } else if (option.state & QStyle::State_MouseOver) {
        painter->fillRect(rect, hover());
    }
    painter->setPen(rule());
    painter->drawLine(rect.left() + 18, rect.bottom(), rect.right() - 18, rect.bottom());

    const QRect content = rect.adjusted(18, 10, -18, -10);
    int right = content.right();
    const int titleCenter = content.top() + 11;
    const QString direct = index.data(LedgerModel::DirectTagRole).toString();
    if (!direct.isEmpty())
        right = drawTag(painter, right, titleCenter, direct, current().onAccent, accent());
    if (job->featured)
        right = drawTag(painter, right, titleCenter, L10n::text(L10n::Key::featured, m_lang),
                        current().gold, current().goldPaper);
    if (index.data(LedgerModel::FreshRole).toBool())
        right = drawTag(painter, right, titleCenter, L10n::text(L10n::Key::bdNewTag, m_lang),
                        accent(), current().freshPaper);

    QFont titleFont = option.font;
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.08);
    titleFont.setWeight(QFont::DemiBold);
    painter->setFont(titleFont);
    painter->setPen(ink());
    const QRect titleRect(content.left(), content.top(), right - content.left(), 22);
    painter->drawText(
        titleRect, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics(titleFont).elidedText(job->title, Qt::ElideRight, titleRect.width()));

    const QString pay = Format::salary(job->salaryMin, job->salaryMax);
    QFont small = option.font;
    painter->setFont(small);
    const QFontMetrics metrics(small);
    const QRect lineRect(content.left(), content.top() + 26, content.width(), 20);
    int payWidth = 0;
    if (!pay.isEmpty()) {
        QFont payFont = small;
        payFont.setWeight(QFont::DemiBold);
        painter->setFont(payFont);
        painter->setPen(accent());
        payWidth = QFontMetrics(payFont).horizontalAdvance(pay) + 12;
        painter->drawText(lineRect, Qt::AlignRight | Qt::AlignVCenter, pay);
        painter->setFont(small);
    }
    const QString city = m_cityLabel ? m_cityLabel(job->city) : job->city;
    const QString where = job->employerName + QStringLiteral("  ·  ") + city;
    painter->setPen(muted());
    painter->drawText(lineRect.adjusted(0, 0, -payWidth, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      metrics.elidedText(where, Qt::ElideRight, lineRect.width() - payWidth));
    painter->restore();
}

} // namespace vl
