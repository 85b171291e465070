#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace vl {

// Reads an internet date-time: "2026-03-01T09:00:00.000Z" (fractional seconds) is tried first,
// then "2026-03-01T09:00:00Z"; the zone is "Z" or a numeric offset. Anything else is no date.
std::optional<QDateTime> parseIso8601(QStringView text);

} // namespace vl
