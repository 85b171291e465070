#pragma once

#include "core/json/Json.h"

namespace vl {

// An application or question sent from this computer. Its `key` opens it without a session.
struct CandidateEntry {
    QString ref;
    QString key;
    QString jobTitle;
    QString employerName;
    QString kind; // "application" or "enquiry"
    QString createdAt;
    VL_JSON_FIELDS(CandidateEntry, ref, key, jobTitle, employerName, kind, createdAt)
};

// A seeker profile posted from this computer.
struct SeekerProfileEntry {
    QString ref;
    QString key;
    QString title;
    QString createdAt;
    VL_JSON_FIELDS(SeekerProfileEntry, ref, key, title, createdAt)
};

} // namespace vl
