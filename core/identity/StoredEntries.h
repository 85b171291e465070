#pragma once

#include "core/json/Json.h"

#include <QDateTime>

namespace vl {

namespace json {

// A moment kept by this computer for itself: ISO 8601 in UTC, with milliseconds. A text that is
// not such a moment does not read.
template <>
struct Codec<QDateTime> {
    static bool read(const QJsonValue& v, QDateTime& out);
    static bool read(const Item& v, QDateTime& out) { return read(QJsonValue(v), out); }
    static QJsonValue write(const QDateTime& v);
};

} // namespace json

// An application or question sent from this computer. Its `key` opens it without a session.
struct CandidateEntry {
    QString ref;
    QString key;
    QString jobTitle;
    QString employerName;
    QString kind; // "application" or "enquiry"
    QDateTime createdAt;
    VL_JSON_FIELDS(CandidateEntry, ref, key, jobTitle, employerName, kind, createdAt)
};

// A seeker profile posted from this computer.
struct SeekerProfileEntry {
    QString ref;
    QString key;
    QString title;
    QDateTime createdAt;
    VL_JSON_FIELDS(SeekerProfileEntry, ref, key, title, createdAt)
};

} // namespace vl
