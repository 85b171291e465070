#include "core/applying/AnswerText.h"

#include <QTimeZone>
#include <algorithm>

namespace vl::AnswerText {

QString multi(const std::vector<QString>& options, const std::vector<QString>& chosen)
{
    QStringList picked;
    for (const auto& option : options) {
        if (std::find(chosen.begin(), chosen.end(), option) != chosen.end())
            picked.append(option);
    }
    return picked.join(QStringLiteral(", "));
}

QString date(const QDateTime& moment)
{
    const QTimeZone tbilisi("Asia/Tbilisi");
    // Without the zone database the country's fixed offset stands in: it keeps no summer time.
    const QDateTime local =
        tbilisi.isValid() ? moment.toTimeZone(tbilisi) : moment.toOffsetFromUtc(4 * 3600);
    return local.toString(QStringLiteral("yyyy-MM-dd"));
}

} // namespace vl::AnswerText
