#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace vl {

class Clock;
struct Request;

// The board's query items read into one SQL condition over `listings l`.
struct JobFilter {
    QString kind;
    QString search;
    QString category;
    QString city;
    bool payOrder = false;
    bool directOnly = false;
    bool postedToday = false;
    bool noExperience = false;
    bool english = false;
    // An employment type key; the short "part" and "full" are understood.
    QString type;
    int payAtLeast = 0;

    static JobFilter from(const Request& request);

    // "l.status = 'live' AND ..." with its values in order.
    QString where(const Clock& clock, QVariantList& values) const;
    QString orderBy(const Clock& clock, QVariantList& values) const;
};

// The SQL of a listing's board date, and of "posted here within the last week".
QString boardDateSql();
QString pinnedSql();

} // namespace vl
