#include "core/discovery/BoardLedger.h"

#include <array>

namespace vl::BoardLedger {

namespace {

constexpr qint64 daySeconds = 86400;

// Seconds since the epoch at which the day `daysBack` before `now` begins. With a fixed offset
// every day is 86400 seconds long, so plain arithmetic is the Gregorian calendar.
qint64 dayStartSeconds(qint64 nowSeconds, int daysBack)
{
    const qint64 local = nowSeconds + dayOffsetSeconds;
    const qint64 day = local >= 0 ? local / daySeconds : (local - daySeconds + 1) / daySeconds;
    return (day - daysBack) * daySeconds - dayOffsetSeconds;
}

Group groupOf(const std::optional<QDateTime>& date, qint64 nowSeconds)
{
    if (!date)
        return Group::earlier;
    const qint64 d = date->toSecsSinceEpoch();
    if (d >= dayStartSeconds(nowSeconds, 0))
        return Group::today;
    if (d >= dayStartSeconds(nowSeconds, 1))
        return Group::yesterday;
    if (d >= dayStartSeconds(nowSeconds, 7))
        return Group::week;
    return Group::earlier;
}

int tierOf(const JobSummary& job)
{
    if (job.featured)
        return 0;
    return job.pinned.value_or(false) ? 1 : 2;
}

QString describe(const Head& head)
{
    if (head.kind == Head::Kind::pinned)
        return QStringLiteral("pinned");
    switch (head.group) {
    case Group::today:
        return QStringLiteral("day(today)");
    case Group::yesterday:
        return QStringLiteral("day(yesterday)");
    case Group::week:
        return QStringLiteral("day(week)");
    case Group::earlier:
        break;
    }
    return QStringLiteral("day(earlier)");
}

} // namespace

QString Row::id() const
{
    return isHead() ? QStringLiteral("head-") + describe(head) : job->ref;
}

QDateTime dayStart(const QDateTime& now, int daysBack)
{
    return QDateTime::fromSecsSinceEpoch(dayStartSeconds(now.toSecsSinceEpoch(), daysBack),
                                         Qt::UTC);
}

Group group(const JobSummary& job, const QDateTime& now)
{
    return groupOf(job.boardDate(), now.toSecsSinceEpoch());
}

bool isFresh(const JobSummary& job, const QDateTime& now)
{
    const auto date = job.boardDate();
    return date && date->toSecsSinceEpoch() >= dayStartSeconds(now.toSecsSinceEpoch(), 1);
}

std::vector<Row> rows(const std::vector<JobSummary>& items, bool grouped, const QDateTime& now)
{
    std::vector<Row> out;
    out.reserve(items.size() + (grouped ? 8 : 0));
    if (!grouped) {
        for (int i = 0; i < int(items.size()); ++i)
            out.push_back({Row::Kind::job, {}, 0, &items[i], i});
        return out;
    }

    const qint64 nowSeconds = now.toSecsSinceEpoch();
    std::vector<int> tiers(items.size());
    std::vector<Group> groups(items.size(), Group::earlier);
    std::array<int, 4> counts{};
    for (size_t i = 0; i < items.size(); ++i) {
        tiers[i] = tierOf(items[i]);
        if (tiers[i] == 2) {
            groups[i] = groupOf(items[i].boardDate(), nowSeconds);
            ++counts[size_t(groups[i])];
        }
    }

    for (size_t i = 0; i < items.size(); ++i) {
        const bool hasPrevious = i > 0;
        if (tiers[i] == 1 && !(hasPrevious && tiers[i - 1] == 1))
            out.push_back({Row::Kind::head, Head::pinned(), 0, nullptr, -1});
        if (tiers[i] == 2 && !(hasPrevious && tiers[i - 1] == 2 && groups[i - 1] == groups[i]))
            out.push_back(
                {Row::Kind::head, Head::day(groups[i]), counts[size_t(groups[i])], nullptr, -1});
        out.push_back({Row::Kind::job, {}, 0, &items[i], int(i)});
    }
    return out;
}

} // namespace vl::BoardLedger
