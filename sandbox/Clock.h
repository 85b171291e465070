#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace vl {

// The sandbox's notion of now: the real clock, or a fixed instant that tests set and move.
class Clock {
public:
    explicit Clock(std::optional<QDateTime> fixed = std::nullopt);

    // Seconds since the epoch.
    qint64 now() const;
    void set(const QDateTime& instant);

    // Start of the day `daysAgo` days before now, in the country's fixed zone (UTC+4, no DST).
    qint64 dayStart(int daysAgo) const;

    // "2026-03-01T09:00:00Z"
    static QString iso(qint64 seconds);
    // "2026-03-01", the calendar date in UTC+4.
    static QString localDate(qint64 seconds);
    // Reads "2026-03-01T09:00:00Z", with or without milliseconds, or with an offset.
    static std::optional<QDateTime> parse(const QString& text);

    static constexpr qint64 zoneOffset = 14400;
    static constexpr qint64 day = 86400;

private:
    std::optional<QDateTime> m_fixed;
};

} // namespace vl
