#include "sandbox/Locale.h"

namespace vl {

QString normalizeLocale(const QString& value)
{
    if (value == QLatin1String("en") || value == QLatin1String("ru"))
        return value;
    return QStringLiteral("ka");
}

const QString& Trilingual::in(const QString& lang) const
{
    if (lang == QLatin1String("en"))
        return en;
    if (lang == QLatin1String("ru"))
        return ru;
    return ka;
}

} // namespace vl
