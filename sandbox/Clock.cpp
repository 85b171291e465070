#include "sandbox/Clock.h"

namespace vl {

Clock::Clock(std::optional<QDateTime> fixed)
    : m_fixed(std::move(fixed))
{
}

qint64 Clock::now() const
{
    return m_fixed ? m_fixed->toSecsSinceEpoch() : QDateTime::currentSecsSinceEpoch();
}

void Clock::set(const QDateTime& instant)
{
    m_fixed = instant;
}

qint64 Clock::dayStart(int daysAgo) const
{
    const qint64 local = now() + zoneOffset;
    const qint64 today = local - (local % day + day) % day;
    return today - zoneOffset - qint64(daysAgo) * day;
}

QString Clock::iso(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

QString Clock::localDate(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds + zoneOffset, Qt::UTC)
        .date()
        .toString(Qt::ISODate);
}

std::optional<QDateTime> Clock::parse(const QString& text)
{
    QDateTime value = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!value.isValid())
        value = QDateTime::fromString(text, Qt::ISODate);
    if (!value.isValid())
        return std::nullopt;
    return value.toUTC();
}

} // namespace vl
