#include "core/format/Iso8601.h"

#include <QTimeZone>

namespace vl {

namespace {

// Reads exactly `count` ASCII digits at `pos`; -1 when any is missing.
int digits(QStringView text, qsizetype pos, int count)
{
    if (pos + count > text.size())
        return -1;
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const char16_t c = text[pos + i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

bool at(QStringView text, qsizetype pos, char16_t c)
{
    return pos < text.size() && text[pos].unicode() == c;
}

} // namespace

std::optional<QDateTime> parseIso8601(QStringView text)
{
    // yyyy-MM-ddTHH:mm:ss
    const int year = digits(text, 0, 4);
    const int month = digits(text, 5, 2);
    const int day = digits(text, 8, 2);
    const int hour = digits(text, 11, 2);
    const int minute = digits(text, 14, 2);
    const int second = digits(text, 17, 2);
    if (year < 0 || month < 0 || day < 0 || hour < 0 || minute < 0 || second < 0 ||
        !at(text, 4, u'-') || !at(text, 7, u'-') || !at(text, 10, u'T') || !at(text, 13, u':') ||
        !at(text, 16, u':'))
        return std::nullopt;

    qsizetype pos = 19;
    int millis = 0;
    if (at(text, pos, u'.')) {
        ++pos;
        int scale = 100;
        const qsizetype start = pos;
        while (pos < text.size() && text[pos].isDigit()) {
            millis += (text[pos].unicode() - u'0') * scale;
            scale /= 10;
            ++pos;
        }
        if (pos == start)
            return std::nullopt;
    }

    int offsetSeconds = 0;
    if (at(text, pos, u'Z')) {
        ++pos;
    } else if (at(text, pos, u'+') || at(text, pos, u'-')) {
        const int sign = at(text, pos, u'-') ? -1 : 1;
        const int offsetHours = digits(text, pos + 1, 2);
        const qsizetype minutesAt = at(text, pos + 3, u':') ? pos + 4 : pos + 3;
        const int offsetMinutes = digits(text, minutesAt, 2);
        if (offsetHours < 0 || offsetMinutes < 0 || offsetHours > 23 || offsetMinutes > 59)
            return std::nullopt;
        offsetSeconds = sign * (offsetHours * 3600 + offsetMinutes * 60);
        pos = minutesAt + 2;
    } else {
        return std::nullopt;
    }
    if (pos != text.size())
        return std::nullopt;

    const QDate date(year, month, day);
    const QTime time(hour, minute, second, millis);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    QDateTime result(date, time, QTimeZone(offsetSeconds));
    return result.toUTC();
}

} // namespace vl
