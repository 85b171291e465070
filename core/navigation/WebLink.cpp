#include "core/navigation/WebLink.h"

#include <QStringList>

namespace vl {

std::optional<QString> vacancyRefOfWebLink(const QUrl& url)
{
    QStringList pieces = url.path().split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (!pieces.isEmpty() &&
        (pieces.first() == QLatin1StringView("ka") || pieces.first() == QLatin1StringView("en") ||
         pieces.first() == QLatin1StringView("ru")))
        pieces.removeFirst();
    if (pieces.size() < 2 || pieces.first() != QLatin1StringView("vacancy"))
        return std::nullopt;
    const QStringList slug = pieces[1].split(QLatin1Char('-'), Qt::SkipEmptyParts);
    const QString ref = slug.isEmpty() ? pieces[1] : slug.first();
    if (ref.isEmpty())
        return std::nullopt;
    return ref.toUpper();
}

} // namespace vl
