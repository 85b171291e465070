#include "app/shell/Router.h"

namespace vl {

namespace {

template <class T, class Signal>
void assign(Router* router, T& field, T value, Signal signal)
{
    if (field == value)
        return;
    field = std::move(value);
    Q_EMIT(router->*signal)();
}

} // namespace

Router::Router(const QString& site, QObject* parent)
    : QObject(parent)
    , m_routes(site)
{
}

void Router::setTab(int tab)
{
    assign(this, m_tab, tab, &Router::tabChanged);
}

void Router::setPending(std::optional<QString> pending)
{
    assign(this, m_pending, std::move(pending), &Router::pendingChanged);
}

void Router::find()
{
    ++m_findTick;
    Q_EMIT findTickChanged();
}

void Router::selectJob(std::optional<QString> ref)
{
    assign(this, m_selectedJob, std::move(ref), &Router::selectedJobChanged);
}

void Router::setVisibleJobs(QStringList refs)
{
    assign(this, m_visibleJobs, std::move(refs), &Router::visibleJobsChanged);
}

void Router::selectSeeker(std::optional<QString> ref)
{
    assign(this, m_selectedSeeker, std::move(ref), &Router::selectedSeekerChanged);
}

void Router::setVisibleSeekers(QStringList refs)
{
    assign(this, m_visibleSeekers, std::move(refs), &Router::visibleSeekersChanged);
}

void Router::selectNews(std::optional<QString> id)
{
    assign(this, m_selectedNews, std::move(id), &Router::selectedNewsChanged);
}

void Router::setVisibleNews(QStringList ids)
{
    assign(this, m_visibleNews, std::move(ids), &Router::visibleNewsChanged);
}

void Router::setReadingJob(std::optional<JobDetail> job)
{
    assign(this, m_readingJob, std::move(job), &Router::readingJobChanged);
}

void Router::askToApply()
{
    ++m_applyTick;
    Q_EMIT applyTickChanged();
}

void Router::askToEnquire()
{
    ++m_askTick;
    Q_EMIT askTickChanged();
}

void Router::open(const QString& link)
{
    const PushRoute route = m_routes.route(link);
    switch (route.kind) {
    case PushRoute::Kind::unknown:
        return;
    case PushRoute::Kind::job:
        setPending(std::nullopt);
        selectJob(route.value);
        setTab(0);
        return;
    default:
        setPending(m_routes.normalise(link));
        setTab(2);
        return;
    }
}

std::optional<QString> Router::stepped(const QStringList& visible,
                                       const std::optional<QString>& selected, int delta)
{
    if (visible.isEmpty())
        return selected;
    const qsizetype at = selected ? visible.indexOf(*selected) : -1;
    if (at < 0)
        return delta >= 1 ? visible.first() : visible.last();
    const qsizetype to = at + delta;
    if (to < 0 || to >= visible.size())
        return selected;
    return visible[to];
}

void Router::step(int delta)
{
    selectJob(stepped(m_visibleJobs, m_selectedJob, delta));
}

void Router::stepSeekers(int delta)
{
    selectSeeker(stepped(m_visibleSeekers, m_selectedSeeker, delta));
}

void Router::stepNews(int delta)
{
    selectNews(stepped(m_visibleNews, m_selectedNews, delta));
}

} // namespace vl
