#pragma once

#include "core/json/Json.h"

#include <vector>

namespace vl {

struct CvFinding {
    QString rule;
    QString severity;
    QString text;
    std::vector<QString> terms;
    VL_JSON_FIELDS(CvFinding, rule, severity, text, terms)
};

// The card's headings, in the language the check was asked in.
struct CvCheckCopy {
    QString title;
    QString sub;
    QString outOf;
    QString fix;
    QString improve;
    QString good;
    QString failed;
    VL_JSON_FIELDS(CvCheckCopy, title, sub, outOf, fix, improve, good, failed)
};

// The service's reading of a CV against one listing.
struct CvCheckPayload {
    int score = 0;
    QString band;
    QString bandLabel;
    bool readable = false;
    int words = 0;
    QString version;
    std::vector<CvFinding> findings;
    std::vector<QString> matched;
    std::vector<QString> missing;
    QString jobRef;
    QString jobTitle;
    CvCheckCopy copy;
    VL_JSON_FIELDS(CvCheckPayload, score, band, bandLabel, readable, words, version, findings,
                   matched, missing, jobRef, jobTitle, copy)

    bool isStretch() const { return band == QLatin1StringView("stretch"); }
};

// The three groups the card shows findings in; a severity the client does not know is good.
enum class FindingGroup { fix, improve, good };
FindingGroup findingGroup(const QString& severity);

} // namespace vl
