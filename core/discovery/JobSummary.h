#pragma once

#include "core/json/Json.h"
#include "core/profile/Fit.h"
#include "core/reputation/RepChip.h"

#include <QDateTime>
#include <optional>

namespace vl {

// A row of the board. Equality and hashing cover every field, so a list can diff rows by value;
// a row's identity in lists is `ref`.
struct JobSummary {
    std::optional<RepChip> employerRep;
    QString ref;
    QString kind;
    QString title;
    QString employerName;
    std::optional<QString> employerLogo;
    QString category;
    QString city;
    QString employmentType;
    std::optional<int> salaryMin;
    std::optional<int> salaryMax;
    QString payType;
    bool featured = false;
    bool translated = false;
    bool aggregated = false;
    std::optional<QString> publishedAt;
    std::optional<QString> bumpedAt;
    std::optional<bool> direct;
    std::optional<bool> pinned;
    std::optional<QString> gigDate;
    std::optional<int> gigHours;
    std::optional<FitBrief> fit;

    VL_JSON_FIELDS(JobSummary, employerRep, ref, kind, title, employerName, employerLogo, category,
                   city, employmentType, salaryMin, salaryMax, payType, featured, translated,
                   aggregated, publishedAt, bumpedAt, direct, pinned, gigDate, gigHours, fit)
    bool operator==(const JobSummary&) const = default;

    // The date the board sorts and groups by: the last bump, else publication; nothing when
    // neither reads as an internet date-time.
    std::optional<QDateTime> boardDate() const;
};

inline size_t qHash(const JobSummary& job, size_t seed = 0)
{
    return json::hashValue(job, seed);
}

} // namespace vl
