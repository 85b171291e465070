#pragma once

#include "core/discovery/FormSpecDTO.h"
#include "core/json/Json.h"
#include "core/profile/Fit.h"
#include "core/reputation/RepChip.h"

#include <optional>

namespace vl {

// One listing in full.
struct JobDetail {
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
    std::optional<QString> gigDate;
    std::optional<int> gigHours;
    QString description;
    std::optional<QString> employerWebsite;
    std::optional<QString> deadline;
    int views = 0;
    QString lang;
    std::optional<QString> applyUrl;
    bool canApply = false;
    bool canEnquire = false;
    std::optional<QString> deliverTo;
    QString siteUrl;
    std::optional<bool> applyOnWeb;
    std::optional<int> contactChannels;
    std::optional<FitDto> fit;
    std::optional<QString> fitState;
    std::optional<bool> direct;
    std::optional<FormSpecDTO> form;
    std::optional<QString> companyKey;

    VL_JSON_FIELDS(JobDetail, employerRep, ref, kind, title, employerName, employerLogo, category,
                   city, employmentType, salaryMin, salaryMax, payType, featured, translated,
                   aggregated, publishedAt, gigDate, gigHours, description, employerWebsite,
                   deadline, views, lang, applyUrl, canApply, canEnquire, deliverTo, siteUrl,
                   applyOnWeb, contactChannels, fit, fitState, direct, form, companyKey)
    bool operator==(const JobDetail&) const = default;
};

} // namespace vl
