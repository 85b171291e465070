#include "app/discovery/LedgerModel.h"

#include "app/discovery/BoardModel.h"
#include "core/format/Format.h"
#include "core/l10n/L10n.h"

#include <algorithm>

namespace vl {

namespace {

// A listing that takes applications here says so where it is tagged.
QString directTag(Lang lang)
{
    return L10n::text(L10n::Key::directBadge, lang) + QStringLiteral(" · ") +
           L10n::text(L10n::Key::applyHere, lang);
}

L10n::Key headKey(const BoardLedger::Head& head)
{
    using G = BoardLedger::Group;
    if (head.kind == BoardLedger::Head::Kind::pinned)
        return L10n::Key::bdPinnedHead;
    switch (head.group) {
    case G::today:
        return L10n::Key::bdToday;
    case G::yesterday:
        return L10n::Key::bdYesterday;
    case G::week:
        return L10n::Key::bdThisWeek;
    case G::earlier:
        break;
    }
    return L10n::Key::bdEarlier;
}

} // namespace

LedgerModel::LedgerModel(BoardModel& board, Scheduler& scheduler, Clock now, QObject* parent)
    : QAbstractListModel(parent)
    , m_board(board)
    , m_scheduler(scheduler)
    , m_now(now ? std::move(now) : Clock([] { return QDateTime::currentDateTimeUtc(); }))
{
    connect(&m_board, &BoardModel::itemsChanged, this, &LedgerModel::rebuild);
    rebuild();
}

void LedgerModel::waitForMidnight()
{
    const QDateTime now = m_now();
    // A moment past midnight, so the new day has surely begun when the rows are grouped again.
    const qint64 wait = now.msecsTo(BoardLedger::dayStart(now, -1)) + 1;
    m_midnight = m_scheduler.after(int(std::clamp<qint64>(wait, 1, 86'400'001)), this,
                                   [this] { rebuild(); });
}

void LedgerModel::setLang(Lang lang)
{
    if (m_lang == lang)
        return;
    m_lang = lang;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(int(m_rows.size()) - 1), {HeadTextRole});
}

void LedgerModel::rebuild()
{
    waitForMidnight();
    std::vector<BoardLedger::Row> rows =
        BoardLedger::rows(m_board.items(), m_board.grouped(), m_now());
    QStringList ids;
    ids.reserve(qsizetype(rows.size()));
    for (const auto& row : rows)
        ids << row.id();

    // Appended rows keep the view's place: the old ids are a prefix of the new ones.
    const qsizetype old = m_ids.size();
    const bool appended =
        old > 0 && ids.size() > old && std::equal(m_ids.begin(), m_ids.end(), ids.begin());
    if (appended) {
        beginInsertRows({}, int(old), int(ids.size()) - 1);
        m_rows = std::move(rows);
        m_ids = std::move(ids);
        endInsertRows();
        // Heads count every loaded listing of their day, so theirs may have grown.
        Q_EMIT dataChanged(index(0), index(int(old) - 1), {HeadCountRole});
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    m_ids = std::move(ids);
    endResetModel();
}

int LedgerModel::rowOfRef(const QString& ref) const
{
    for (int i = 0; i < int(m_rows.size()); ++i) {
        if (!m_rows[size_t(i)].isHead() && m_rows[size_t(i)].job->ref == ref)
            return i;
    }
    return -1;
}

int LedgerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

const JobSummary* LedgerModel::jobAt(int row) const
{
    if (row < 0 || row >= int(m_rows.size()) || m_rows[size_t(row)].isHead())
        return nullptr;
    return m_rows[size_t(row)].job;
}

QVariant LedgerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_rows.size()))
        return {};
    const BoardLedger::Row& row = m_rows[size_t(index.row())];
    switch (role) {
    case IsHeadRole:
        return row.isHead();
    case HeadTextRole:
        return row.isHead() ? L10n::text(headKey(row.head), m_lang) : QVariant();
    case HeadCountRole:
        return row.count;
    case PinnedHeadRole:
        return row.isHead() && row.head.kind == BoardLedger::Head::Kind::pinned;
    case JobRole:
        return row.isHead() ? QVariant() : QVariant::fromValue(quintptr(row.job));
    case IndexRole:
        return row.index;
    case FreshRole:
        return !row.isHead() && BoardLedger::isFresh(*row.job, m_now());
    case DirectTagRole:
        if (row.isHead() || !row.job->direct.value_or(false))
            return QString();
        return directTag(m_lang);
    case Qt::AccessibleTextRole:
        if (!row.isHead())
            return spoken(*row.job, BoardLedger::isFresh(*row.job, m_now()));
        return L10n::text(headKey(row.head), m_lang);
    case RefRole:
    case Qt::DisplayRole:
        return row.isHead() ? L10n::text(headKey(row.head), m_lang) : row.job->ref;
    default:
        return {};
    }
}

void LedgerModel::setCityLabel(std::function<QString(const QString&)> label)
{
    m_cityLabel = std::move(label);
}

// What the row shows, in the order it shows it: title, employer, city, pay, then its tags.
QString LedgerModel::spoken(const JobSummary& job, bool fresh) const
{
    QStringList parts{job.title, job.employerName, m_cityLabel ? m_cityLabel(job.city) : job.city};
    if (const QString pay = Format::salary(job.salaryMin, job.salaryMax); !pay.isEmpty())
        parts << pay;
    if (fresh)
        parts << L10n::text(L10n::Key::bdNewTag, m_lang);
    if (job.featured)
        parts << L10n::text(L10n::Key::featured, m_lang);
    if (job.direct.value_or(false))
        parts << directTag(m_lang);
    return parts.join(QStringLiteral(", "));
}

Qt::ItemFlags LedgerModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // Heads take no part in selection, so the arrow keys pass over them.
    return m_rows[size_t(index.row())].isHead() ? Qt::NoItemFlags
                                                : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace vl
