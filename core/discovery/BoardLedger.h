#pragma once

#include "core/discovery/JobSummary.h"

#include <QDateTime>
#include <vector>

namespace vl::BoardLedger {

// Days on the board begin at midnight in a fixed UTC+4 zone, whatever the machine's zone.
inline constexpr qint64 dayOffsetSeconds = 14400;

enum class Group { today, yesterday, week, earlier };

struct Head {
    enum class Kind { day, pinned };
    Kind kind = Kind::day;
    Group group = Group::today;

    static Head day(Group group) { return {Kind::day, group}; }
    static Head pinned() { return {Kind::pinned, Group::today}; }
    bool operator==(const Head&) const = default;
};

// A head row, or a job row pointing into the list it was computed from; `job` stays valid only
// as long as that list is left unchanged.
struct Row {
    enum class Kind { head, job };
    Kind kind = Kind::job;
    Head head{};
    int count = 0;
    const JobSummary* job = nullptr;
    int index = -1;

    bool isHead() const { return kind == Kind::head; }
    // "head-" and the head's description, or the listing's ref.
    QString id() const;
};

// The start of the day `daysBack` days before `now`, in the board's zone.
QDateTime dayStart(const QDateTime& now, int daysBack);

Group group(const JobSummary& job, const QDateTime& now);
bool isFresh(const JobSummary& job, const QDateTime& now);
std::vector<Row> rows(const std::vector<JobSummary>& items, bool grouped, const QDateTime& now);

} // namespace vl::BoardLedger
