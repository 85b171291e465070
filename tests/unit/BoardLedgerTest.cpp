#include "core/discovery/BoardLedger.h"

#include <gtest/gtest.h>

using namespace vl;
using namespace vl::BoardLedger;

namespace {

// 2026-03-10 12:00 UTC is 16:00 on the 10th in the board's zone; that day began at 20:00 UTC on
// the 9th.
const QDateTime now = QDateTime::fromString(QStringLiteral("2026-03-10T12:00:00Z"), Qt::ISODate);

JobSummary job(const char* ref, const char* published, bool featured = false, bool pinned = false)
{
    JobSummary out;
    out.ref = QString::fromLatin1(ref);
    if (published)
        out.publishedAt = QString::fromLatin1(published);
    out.featured = featured;
    if (pinned)
        out.pinned = true;
    return out;
}

// Each row as text: "job:REF" or "head:DESCRIPTION:COUNT".
std::vector<std::string> describe(const std::vector<Row>& rows)
{
    std::vector<std::string> out;
    for (const Row& row : rows) {
        if (row.isHead())
            out.push_back(row.id().toStdString() + ":" + std::to_string(row.count));
        else
            out.push_back("job:" + row.id().toStdString() + "@" + std::to_string(row.index));
    }
    return out;
}

} // namespace

TEST(BoardLedger, GroupsByTheDayInUtcPlusFour)
{
    EXPECT_EQ(group(job("A", "2026-03-10T11:00:00Z"), now), Group::today);
    EXPECT_EQ(group(job("B", "2026-03-09T20:00:00Z"), now), Group::today);
    EXPECT_EQ(group(job("C", "2026-03-09T19:59:59Z"), now), Group::yesterday);
    // 20:30 UTC is already the next morning on the board's calendar.
    EXPECT_EQ(group(job("D", "2026-03-08T20:30:00Z"), now), Group::yesterday);
    EXPECT_EQ(group(job("E", "2026-03-08T19:30:00Z"), now), Group::week);
    // The start of the seventh day back belongs to the week, one second before it does not.
    EXPECT_EQ(dayStart(now, 7),
              QDateTime::fromString(QStringLiteral("2026-03-02T20:00:00Z"), Qt::ISODate));
    EXPECT_EQ(group(job("F", "2026-03-02T20:00:00Z"), now), Group::week);
    EXPECT_EQ(group(job("G", "2026-03-02T19:59:59Z"), now), Group::earlier);
    EXPECT_EQ(group(job("H", "2026-03-03T00:00:00+04:00"), now), Group::week);
    EXPECT_EQ(group(job("I", nullptr), now), Group::earlier);
    EXPECT_EQ(group(job("J", "yesterday"), now), Group::earlier);
}

TEST(BoardLedger, BumpOutranksPublicationAndFreshMeansTodayOrYesterday)
{
    JobSummary bumped = job("A", "2026-01-01T00:00:00Z");
    bumped.bumpedAt = QStringLiteral("2026-03-10T08:00:00Z");
    EXPECT_EQ(group(bumped, now), Group::today);
    EXPECT_TRUE(isFresh(bumped, now));

    EXPECT_TRUE(isFresh(job("B", "2026-03-08T20:00:00Z"), now));
    EXPECT_FALSE(isFresh(job("C", "2026-03-08T19:59:59Z"), now));
    EXPECT_FALSE(isFresh(job("D", nullptr), now));
    EXPECT_FALSE(isFresh(job("E", "not a date"), now));
}

TEST(BoardLedger, RowsPutHeadsWhereTierOrDayChanges)
{
    const std::vector<JobSummary> items{
        job("F", "2026-03-01T10:00:00Z", true),
        job("P1", "2026-03-05T10:00:00Z", false, true),
        job("P2", "2026-03-04T10:00:00Z", false, true),
        job("T1", "2026-03-10T10:00:00Z"),
        job("T2", "2026-03-10T09:00:00Z"),
        job("Y1", "2026-03-09T10:00:00Z"),
    };
    EXPECT_EQ(describe(rows(items, true, now)),
              (std::vector<std::string>{"job:F@0", "head-pinned:0", "job:P1@1", "job:P2@2",
                                        "head-day(today):2", "job:T1@3", "job:T2@4",
                                        "head-day(yesterday):1", "job:Y1@5"}));
}

TEST(BoardLedger, AnInterruptedDayOpensAnotherHeadWithTheWholeCount)
{
    const std::vector<JobSummary> items{
        job("T1", "2026-03-10T10:00:00Z"), job("F", "2026-03-10T10:00:00Z", true),
        job("T2", "2026-03-10T09:00:00Z"), job("E1", "2026-01-01T09:00:00Z"),
        job("T3", "2026-03-10T08:00:00Z"),
    };
    EXPECT_EQ(describe(rows(items, true, now)),
              (std::vector<std::string>{"head-day(today):3", "job:T1@0", "job:F@1",
                                        "head-day(today):3", "job:T2@2", "head-day(earlier):1",
                                        "job:E1@3", "head-day(today):3", "job:T3@4"}));
}

TEST(BoardLedger, UngroupedRowsAreTheListingsAlone)
{
    const std::vector<JobSummary> items{job("P", "2026-03-10T10:00:00Z", false, true),
                                        job("T", "2026-03-10T10:00:00Z"), job("X", nullptr)};
    const auto flat = rows(items, false, now);
    EXPECT_EQ(describe(flat), (std::vector<std::string>{"job:P@0", "job:T@1", "job:X@2"}));
    EXPECT_EQ(flat[1].job, &items[1]);
    EXPECT_TRUE(rows({}, true, now).empty());
}
