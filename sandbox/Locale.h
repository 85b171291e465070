#pragma once

#include <QString>

namespace vl {

// "ka", "en" or "ru"; anything else is Georgian, the country's default.
QString normalizeLocale(const QString& value);

// One text in the three languages of the service.
struct Trilingual {
    QString ka;
    QString en;
    QString ru;

    const QString& in(const QString& lang) const;
};

} // namespace vl
