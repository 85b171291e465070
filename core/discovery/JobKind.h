#pragma once

#include <QString>

namespace vl {

enum class JobKind { vacancy, gig };

inline QString rawValue(JobKind kind)
{
    return kind == JobKind::gig ? QStringLiteral("gig") : QStringLiteral("vacancy");
}

// The wire's kind fields stay strings; anything but "gig" is a vacancy.
inline JobKind jobKindOf(const QString& raw)
{
    return raw == QLatin1StringView("gig") ? JobKind::gig : JobKind::vacancy;
}

} // namespace vl
