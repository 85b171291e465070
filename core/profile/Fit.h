#pragma once

// How well a listing suits the signed-in job seeker, as the service scores it.

#include "core/json/Json.h"

#include <optional>
#include <vector>

namespace vl {

struct PracticalNote {
    QString text;
    bool gap = false; // a shortcoming rather than a plus

    VL_JSON_FIELDS(PracticalNote, text, gap)
    bool operator==(const PracticalNote&) const = default;
};

struct FitFactors {
    std::optional<int> occupation;
    std::optional<int> skills;
    std::optional<int> meaning;
    std::optional<int> experience;
    std::optional<int> field;

    VL_JSON_FIELDS(FitFactors, occupation, skills, meaning, experience, field)
    bool operator==(const FitFactors&) const = default;
};

struct FitDto {
    int score = 0;
    QString band;
    QString bandLabel;
    QString bandShort;
    QString why;
    std::vector<QString> matched;
    std::vector<QString> missing;
    std::vector<PracticalNote> practical;
    std::optional<FitFactors> factors;
    std::optional<bool> thin;

    VL_JSON_FIELDS(FitDto, score, band, bandLabel, bandShort, why, matched, missing, practical,
                   factors, thin)
    bool operator==(const FitDto&) const = default;
};

// The short form carried on a list row.
struct FitBrief {
    int score = 0;
    QString band;
    QString bandShort;

    VL_JSON_FIELDS(FitBrief, score, band, bandShort)
    bool operator==(const FitBrief&) const = default;
};

} // namespace vl
