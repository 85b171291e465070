#pragma once

#include "core/discovery/JobDetail.h"
#include "core/navigation/PushRoutes.h"

#include <QObject>
#include <QStringList>
#include <optional>

namespace vl {

// The selections and the pending route: what the window shows and what a link asked for.
class Router : public QObject {
    Q_OBJECT
public:
    explicit Router(const QString& site, QObject* parent = nullptr);

    const PushRoutes& routes() const { return m_routes; }

    int tab() const { return m_tab; }
    const std::optional<QString>& pending() const { return m_pending; }
    int findTick() const { return m_findTick; }
    const std::optional<QString>& selectedJob() const { return m_selectedJob; }
    const QStringList& visibleJobs() const { return m_visibleJobs; }
    const std::optional<QString>& selectedSeeker() const { return m_selectedSeeker; }
    const QStringList& visibleSeekers() const { return m_visibleSeekers; }
    const std::optional<QString>& selectedNews() const { return m_selectedNews; }
    const QStringList& visibleNews() const { return m_visibleNews; }
    const std::optional<JobDetail>& readingJob() const { return m_readingJob; }
    int applyTick() const { return m_applyTick; }
    int askTick() const { return m_askTick; }

    void setTab(int tab);
    void setPending(std::optional<QString> pending);
    void find();
    void selectJob(std::optional<QString> ref);
    void setVisibleJobs(QStringList refs);
    void selectSeeker(std::optional<QString> ref);
    void setVisibleSeekers(QStringList refs);
    void selectNews(std::optional<QString> id);
    void setVisibleNews(QStringList ids);
    void setReadingJob(std::optional<JobDetail> job);
    void askToApply();
    void askToEnquire();

    // A listing opens in the board; an unknown link is dropped; anything else waits as
    // `pending` in the inbox.
    void open(const QString& link);
    // Moves the selection through the visible rows; the ends hold. With no selection in the
    // list, forward starts at the first row and backward at the last.
    void step(int delta);
    void stepSeekers(int delta);
    void stepNews(int delta);

    static std::optional<QString> stepped(const QStringList& visible,
                                          const std::optional<QString>& selected, int delta);

Q_SIGNALS:
    void tabChanged();
    void pendingChanged();
    void findTickChanged();
    void selectedJobChanged();
    void visibleJobsChanged();
    void selectedSeekerChanged();
    void visibleSeekersChanged();
    void selectedNewsChanged();
    void visibleNewsChanged();
    void readingJobChanged();
    void applyTickChanged();
    void askTickChanged();

private:
    PushRoutes m_routes;
    int m_tab = 0;
    std::optional<QString> m_pending;
    int m_findTick = 0;
    std::optional<QString> m_selectedJob;
    QStringList m_visibleJobs;
    std::optional<QString> m_selectedSeeker;
    QStringList m_visibleSeekers;
    std::optional<QString> m_selectedNews;
    QStringList m_visibleNews;
    std::optional<JobDetail> m_readingJob;
    int m_applyTick = 0;
    int m_askTick = 0;
};

} // namespace vl
