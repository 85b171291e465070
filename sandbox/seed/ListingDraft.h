#pragma once

#include <QString>
#include <optional>

namespace vl {

struct Company;
struct Role;
struct Term;

// A seeded listing before it has a ref and dates: what the generator decided about it.
struct ListingDraft {
    const Role* role = nullptr;
    const Company* company = nullptr;
    const Term* city = nullptr;
    QString type;
    std::optional<int> salaryMin;
    std::optional<int> salaryMax;
    // Empty when the listing names no pay.
    QString payType;
    // Published that many days before today, at this fraction of the working day.
    int daysAgo = 0;
    double dayFraction = 0;
    std::optional<int> bumpedDaysAgo;
    double bumpFraction = 0;
    bool featured = false;
    bool aggregated = false;
    bool direct = false;
    bool privatePerson = false;
    bool applyOnWeb = false;
    int contactChannels = 0;
    QString applyUrl;
    QString deliverTo;
    QString form;
    QString status = QStringLiteral("live");
    // The language written in, and whether machine translations into the others exist.
    QString lang;
    bool translations = true;
    int gigInDays = 0;
    int gigHours = 0;
    std::optional<qint64> deadlineDays;
    int views = 0;
};

} // namespace vl
