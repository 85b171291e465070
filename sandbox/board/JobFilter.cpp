#include "sandbox/board/JobFilter.h"

#include "sandbox/Clock.h"
#include "sandbox/http/Request.h"

namespace vl {

QString boardDateSql()
{
    return QStringLiteral("COALESCE(l.bumped_at, l.published_at)");
}

QString pinnedSql()
{
    return QStringLiteral("(l.aggregated = 0 AND l.published_at >= ?)");
}

JobFilter JobFilter::from(const Request& request)
{
    JobFilter f;
    f.kind = request.queryValue(QStringLiteral("kind")) == QLatin1String("gig")
                 ? QStringLiteral("gig")
                 : QStringLiteral("vacancy");
    f.search = request.queryValue(QStringLiteral("q")).trimmed().toLower();
    f.category = request.queryValue(QStringLiteral("category"));
    f.city = request.queryValue(QStringLiteral("city"));
    f.payOrder = request.queryValue(QStringLiteral("sort")) == QLatin1String("pay");
    f.directOnly = request.queryValue(QStringLiteral("direct")) == QLatin1String("1");
    f.postedToday = request.queryValue(QStringLiteral("since")) == QLatin1String("today");
    f.noExperience = request.queryValue(QStringLiteral("noexp")) == QLatin1String("1");
    f.english = request.queryValue(QStringLiteral("english")) == QLatin1String("1");
    f.type = request.queryValue(QStringLiteral("type"));
    f.payAtLeast = request.queryValue(QStringLiteral("pay")).toInt();
    return f;
}

QString JobFilter::where(const Clock& clock, QVariantList& values) const
{
    QStringList terms{QStringLiteral("l.status = 'live'"), QStringLiteral("l.kind = ?")};
    values.append(kind);
    if (!search.isEmpty()) {
        terms.append(QStringLiteral("instr(l.search, ?) > 0"));
        values.append(search);
    }
    if (!category.isEmpty()) {
        terms.append(QStringLiteral("l.category = ?"));
        values.append(category);
    }
    if (!city.isEmpty()) {
        terms.append(QStringLiteral("l.city = ?"));
        values.append(city);
    }
    if (directOnly)
        terms.append(QStringLiteral("l.direct = 1"));
    if (postedToday) {
        terms.append(boardDateSql() + QStringLiteral(" >= ?"));
        values.append(clock.dayStart(0));
    }
    if (noExperience)
        terms.append(QStringLiteral("l.no_experience = 1"));
    if (english)
        terms.append(QStringLiteral("l.english = 1"));
    if (!type.isEmpty()) {
        terms.append(QStringLiteral("l.employment_type = ?"));
        values.append(type);
    }
    if (payAtLeast > 0) {
        terms.append(QStringLiteral("l.pay_rank >= ?"));
        values.append(payAtLeast);
    }
    return terms.join(QStringLiteral(" AND "));
}

QString JobFilter::orderBy(const Clock& clock, QVariantList& values) const
{
    if (payOrder)
        return QStringLiteral("l.pay_rank IS NULL, l.pay_rank DESC, ") + boardDateSql() +
               QStringLiteral(" DESC, l.ref DESC");
    values.append(clock.now() - 7 * Clock::day);
    return QStringLiteral("l.featured DESC, ") + pinnedSql() + QStringLiteral(" DESC, ") +
           boardDateSql() + QStringLiteral(" DESC, l.ref DESC");
}

} // namespace vl
