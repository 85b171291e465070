#pragma once

#include "core/json/Json.h"
#include "core/reputation/RepChip.h"

#include <optional>
#include <vector>

namespace vl {

// A seeker profile sent for review, and the key that manages it from this computer.
struct SeekerPostResult {
    QString ref;
    QString manageKey;
    VL_JSON_FIELDS(SeekerPostResult, ref, manageKey)
};

struct SeekerContactResult {
    std::optional<QString> threadId;
    VL_JSON_FIELDS(SeekerContactResult, threadId)
};

// A posted seeker profile in full, as employers read it.
struct SeekerDetail {
    std::optional<RepChip> rep;
    std::optional<std::vector<QString>> badges;
    QString ref;
    QString name;
    QString title;
    QString category;
    QString city;
    QString employmentType;
    bool translated = false;
    std::optional<QString> photoUrl;
    std::optional<QString> publishedAt;
    QString description;
    QString lang;
    QString siteUrl;
    VL_JSON_FIELDS(SeekerDetail, rep, badges, ref, name, title, category, city, employmentType,
                   translated, photoUrl, publishedAt, description, lang, siteUrl)
};

} // namespace vl
