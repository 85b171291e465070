#include "core/format/Format.h"

#include "core/format/Iso8601.h"

#include <QLocale>
#include <QTimeZone>

namespace vl::Format {

namespace {

// The service is in one country: wall-clock arithmetic uses its fixed offset, UTC+4.
const QTimeZone& serviceZone()
{
    static const QTimeZone zone(4 * 3600);
    return zone;
}

QLocale localeFor(Lang lang)
{
    switch (lang) {
    case Lang::en:
        return QLocale(QLocale::English, QLocale::UnitedStates);
    case Lang::ru:
        return QLocale(QLocale::Russian, QLocale::Russia);
    case Lang::ka:
        break;
    }
    return QLocale(QLocale::Georgian, QLocale::Georgia);
}

// Qt has short and long styles only; the medium style is the common written date of each
// language: "Mar 1, 2026", "1 მარ. 2026", "1 мар. 2026 г.". Qt's Georgian short month names
// carry no abbreviation point, its Russian ones do.
QString mediumPattern(Lang lang)
{
    switch (lang) {
    case Lang::en:
        return QStringLiteral("MMM d, yyyy");
    case Lang::ru:
        return QStringLiteral("d MMM yyyy 'г.'");
    case Lang::ka:
        break;
    }
    return QStringLiteral("d MMM. yyyy");
}

// Short styles: "3/1/26, 9:05 AM", "01.03.26, 09:05", "01.03.2026, 09:05".
QString shortPattern(Lang lang)
{
    switch (lang) {
    case Lang::en:
        return QStringLiteral("M/d/yy, h:mm AP");
    case Lang::ru:
        return QStringLiteral("dd.MM.yyyy, HH:mm");
    case Lang::ka:
        break;
    }
    return QStringLiteral("dd.MM.yy, HH:mm");
}

std::optional<QDateTime> localDate(const std::optional<QString>& text)
{
    if (!text)
        return std::nullopt;
    const auto parsed = parseDate(*text);
    if (!parsed)
        return std::nullopt;
    return parsed->toLocalTime();
}

} // namespace

QString salary(std::optional<int> min, std::optional<int> max)
{
    const QString lari = QStringLiteral("₾");
    if (!min && !max)
        return QString();
    if (!min || !max || *min == *max)
        return lari + QString::number(min ? *min : *max);
    return lari + QString::number(*min) + QStringLiteral("–") + QString::number(*max);
}

QString grouped(qint64 n, Lang lang)
{
    const QChar separator = lang == Lang::ru ? QChar(0x00A0) : QChar(u',');
    // The magnitude as unsigned, so that the most negative value has one too.
    const quint64 magnitude = n < 0 ? 0 - static_cast<quint64>(n) : static_cast<quint64>(n);
    const QString digits = QString::number(magnitude);
    QString result;
    result.reserve(digits.size() + digits.size() / 3 + 1);
    if (n < 0)
        result.append(u'-');
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            result.append(separator);
        result.append(digits[i]);
    }
    return result;
}

std::optional<QDateTime> parseDate(QStringView text)
{
    return parseIso8601(text);
}

QString dateTime(const std::optional<QString>& text, Lang lang)
{
    const auto local = localDate(text);
    if (!local)
        return QString();
    return localeFor(lang).toString(*local, shortPattern(lang));
}

QString date(const std::optional<QString>& text, Lang lang)
{
    const auto local = localDate(text);
    if (!local)
        return QString();
    return localeFor(lang).toString(local->date(), mediumPattern(lang));
}

QString stamp(const QString& text)
{
    const auto parsed = parseDate(text);
    if (!parsed)
        return text;
    const QDateTime at = parsed->toTimeZone(serviceZone());
    const QDate day = at.date();
    const QTime time = at.time();
    return QStringLiteral("%1.%2.%3 · %4:%5")
        .arg(day.day(), 2, 10, QChar(u'0'))
        .arg(day.month(), 2, 10, QChar(u'0'))
        .arg(day.year())
        .arg(time.hour(), 2, 10, QChar(u'0'))
        .arg(time.minute(), 2, 10, QChar(u'0'));
}

QDateTime dayStart(int daysAgo, const QDateTime& now)
{
    const QDate today = now.toTimeZone(serviceZone()).date();
    const QDateTime start = QDateTime(today.addDays(-daysAgo), QTime(0, 0), serviceZone());
    if (start.isValid())
        return start;
    return QDateTime(today, QTime(0, 0), serviceZone());
}

} // namespace vl::Format
