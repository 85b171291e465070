#pragma once

#include "app/platform/Scheduler.h"
#include "app/service/APIClient.h"
#include "core/discovery/BoardSummary.h"
#include "core/discovery/JobKind.h"
#include "core/discovery/JobSummary.h"
#include "core/discovery/QuickPicks.h"
#include "core/l10n/Lang.h"

#include <QCoroTask>
#include <QObject>
#include <optional>
#include <vector>

namespace vl {

// One board's state: the pages loaded so far, the filters and the head. Only the newest load
// may change it, so a slow answer to an old filter never overwrites a newer one.
class BoardModel : public QObject {
    Q_OBJECT
public:
    static constexpr int debounceMs = 350;

    BoardModel(JobKind kind, const APIClient& api, Scheduler& scheduler, QObject* parent = nullptr);

    JobKind kind() const { return m_kind; }
    const std::vector<JobSummary>& items() const { return m_items; }
    int total() const { return m_total; }
    bool more() const { return m_more; }
    bool loading() const { return m_loading; }
    bool failed() const { return m_failed; }
    const QString& query() const { return m_query; }
    const std::optional<QString>& category() const { return m_category; }
    const std::optional<QString>& city() const { return m_city; }
    const std::optional<QString>& sort() const { return m_sort; }
    bool direct() const { return m_direct; }
    const QuickPicks& picks() const { return m_picks; }
    const std::optional<BoardSummary>& summary() const { return m_summary; }
    int postedToday() const { return m_postedToday; }
    const std::optional<QString>& loadedQuery() const { return m_loadedQuery; }
    std::optional<Lang> summaryLang() const { return m_summaryLang; }
    int page() const { return m_page; }
    int generation() const { return m_generation; }

    // How many filters are set: category, city, sort, direct and each pick; the search text
    // does not count.
    int activeFilters() const;
    bool needsSearch() const;
    // Rows are grouped by day unless the board is sorted by pay.
    bool grouped() const { return m_sort != QLatin1StringView("pay"); }

    // A new search text. While it differs from the last loaded one, a load follows after a
    // pause in typing; a further change cancels the wait.
    void setQuery(const QString& text, Lang lang);
    // The filters change here and load nothing; whoever changes them loads.
    void setCategory(std::optional<QString> category);
    void setCity(std::optional<QString> city);
    void setSort(std::optional<QString> sort);
    void setDirect(bool direct);
    void setPicks(QuickPicks picks);

    QCoro::Task<> load(Lang lang, bool reset, bool fresh);
    // The next page, when there is one and nothing is loading.
    QCoro::Task<> loadMore(Lang lang);

Q_SIGNALS:
    void itemsChanged();
    // Anything but the items.
    void changed();

private:
    QCoro::Task<> loadSummary(Lang lang);

    JobKind m_kind;
    const APIClient& m_api;
    Scheduler& m_scheduler;
    Scheduler::Handle m_searchWait;

    std::vector<JobSummary> m_items;
    int m_total = 0;
    bool m_more = false;
    bool m_loading = false;
    bool m_failed = false;
    QString m_query;
    std::optional<QString> m_category;
    std::optional<QString> m_city;
    std::optional<QString> m_sort;
    bool m_direct = false;
    QuickPicks m_picks;
    std::optional<BoardSummary> m_summary;
    int m_postedToday = 0;
    std::optional<QString> m_loadedQuery;
    std::optional<Lang> m_summaryLang;
    int m_page = 1;
    int m_generation = 0;
};

} // namespace vl
