#include "app/discovery/BoardModel.h"

#include <QPointer>

namespace vl {

BoardModel::BoardModel(JobKind kind, const APIClient& api, Scheduler& scheduler, QObject* parent)
    : QObject(parent)
    , m_kind(kind)
    , m_api(api)
    , m_scheduler(scheduler)
{
}

int BoardModel::activeFilters() const
{
    return int(m_category.has_value()) + int(m_city.has_value()) + int(m_sort.has_value()) +
           int(m_direct) + m_picks.count();
}

bool BoardModel::needsSearch() const
{
    return !m_loadedQuery || *m_loadedQuery != m_query;
}

void BoardModel::setQuery(const QString& text, Lang lang)
{
    if (text == m_query)
        return;
    m_query = text;
    m_searchWait.reset();
    Q_EMIT changed();
    if (!needsSearch())
        return;
    m_searchWait = m_scheduler.after(debounceMs, this, [this, lang] {
        m_searchWait.reset();
        load(lang, true, false);
    });
}

void BoardModel::setCategory(std::optional<QString> category)
{
    m_category = std::move(category);
    Q_EMIT changed();
}

void BoardModel::setCity(std::optional<QString> city)
{
    m_city = std::move(city);
    Q_EMIT changed();
}

void BoardModel::setSort(std::optional<QString> sort)
{
    m_sort = std::move(sort);
    Q_EMIT changed();
}

void BoardModel::setDirect(bool direct)
{
    m_direct = direct;
    Q_EMIT changed();
}

void BoardModel::setPicks(QuickPicks picks)
{
    m_picks = picks;
    Q_EMIT changed();
}

QCoro::Task<> BoardModel::load(Lang lang, bool reset, bool fresh)
{
    if (reset)
        m_page = 1;
    const int mine = ++m_generation;
    m_loading = true;
    m_failed = false;
    Q_EMIT changed();
    if (reset && m_summaryLang != lang)
        loadSummary(lang);

    QPointer<BoardModel> self(this);
    auto result = co_await m_api.jobs(m_kind, lang, m_page, m_query, m_category, m_city, m_sort,
                                      m_direct, m_picks, fresh, this);
    if (!self || mine != m_generation)
        co_return;

    if (!result) {
        if (reset) {
            m_items.clear();
            Q_EMIT itemsChanged();
        }
        m_failed = true;
        m_loading = false;
        Q_EMIT changed();
        co_return;
    }
    Page<JobSummary> page = std::move(result).value();
    const int answered = int(page.items.size());
    if (reset)
        m_items = std::move(page.items);
    else
        m_items.insert(m_items.end(), std::make_move_iterator(page.items.begin()),
                       std::make_move_iterator(page.items.end()));
    m_total = page.meta ? page.meta->total : answered;
    m_more = page.more();
    if (page.meta && page.meta->postedToday)
        m_postedToday = *page.meta->postedToday;
    m_loadedQuery = m_query;
    m_loading = false;
    Q_EMIT itemsChanged();
    Q_EMIT changed();
}

QCoro::Task<> BoardModel::loadMore(Lang lang)
{
    if (!m_more || m_loading)
        co_return;
    ++m_page;
    co_await load(lang, false, false);
}

QCoro::Task<> BoardModel::loadSummary(Lang lang)
{
    QPointer<BoardModel> self(this);
    auto result = co_await m_api.board(m_kind, lang, this);
    if (!self || !result)
        co_return;
    m_summary = std::move(result).value();
    m_summaryLang = lang;
    m_postedToday = m_summary->postedToday;
    Q_EMIT changed();
}

} // namespace vl
