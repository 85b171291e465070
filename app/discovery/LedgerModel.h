#pragma once

#include "app/platform/Scheduler.h"
#include "core/discovery/BoardLedger.h"
#include "core/l10n/Lang.h"

#include <QAbstractListModel>
#include <functional>
#include <vector>

namespace vl {

class BoardModel;

// The board's ledger as list rows: the heads and listings of BoardLedger over the board's
// items. A next page that only adds rows at the end arrives as an insertion, so the view keeps
// its place; anything else resets. The day heads follow the clock: at the board's midnight the
// rows are grouped again, so "Today" becomes "Yesterday" without a load.
class LedgerModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role {
        IsHeadRole = Qt::UserRole + 1,
        HeadTextRole,
        HeadCountRole,
        PinnedHeadRole,
        JobRole, // const JobSummary*, as a pointer in a quintptr
        IndexRole,
        FreshRole,
        RefRole,
        // The words of a direct listing's tag; empty for any other row.
        DirectTagRole,
    };

    using Clock = std::function<QDateTime()>;

    LedgerModel(BoardModel& board, Scheduler& scheduler, Clock now = {}, QObject* parent = nullptr);

    void setLang(Lang lang);
    Lang lang() const { return m_lang; }
    // How a city key reads in the current language, for what a row says to a screen reader.
    void setCityLabel(std::function<QString(const QString&)> label);
    const std::vector<BoardLedger::Row>& rows() const { return m_rows; }
    // The list row of a listing, or -1.
    int rowOfRef(const QString& ref) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // The listing of a row, or nothing for a head.
    const JobSummary* jobAt(int row) const;

private:
    void rebuild();
    void waitForMidnight();
    QString spoken(const JobSummary& job, bool fresh) const;

    BoardModel& m_board;
    Scheduler& m_scheduler;
    Scheduler::Handle m_midnight;
    Clock m_now;
    std::function<QString(const QString&)> m_cityLabel;
    Lang m_lang = Lang::ka;
    std::vector<BoardLedger::Row> m_rows;
    QStringList m_ids;
};

} // namespace vl
