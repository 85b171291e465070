#pragma once

#include "core/l10n/Lang.h"

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <optional>

namespace vl::Format {

// "₾1200" for one amount, "₾1000–1500" for a range, "" for none. No digit grouping.
QString salary(std::optional<int> min, std::optional<int> max);

// Digits in groups of three: "1,234,567" in ka and en, "1 234 567" with no-break spaces in ru.
QString grouped(qint64 n, Lang lang);

// An internet date-time, with or without fractional seconds; anything else is no date.
std::optional<QDateTime> parseDate(QStringView text);

// Short date and short time on the reader's own clock; "" when absent or unreadable.
QString dateTime(const std::optional<QString>& text, Lang lang);

// Medium date, no time, on the reader's own clock; "" when absent or unreadable.
QString date(const std::optional<QString>& text, Lang lang);

// "dd.MM.yyyy · HH:mm" in the service's zone; the text itself when unreadable.
QString stamp(const QString& text);

// The start of the day `daysAgo` days before `now`'s day in the service's zone.
QDateTime dayStart(int daysAgo, const QDateTime& now);

} // namespace vl::Format
