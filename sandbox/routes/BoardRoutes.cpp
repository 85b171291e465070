#include "sandbox/routes/BoardRoutes.h"

#include "sandbox/Context.h"
#include "sandbox/Locale.h"
#include "sandbox/Router.h"
#include "sandbox/board/JobFilter.h"
#include "sandbox/board/ListingReader.h"
#include "sandbox/http/Envelope.h"

#include <memory>

namespace vl::BoardRoutes {

namespace {

constexpr int freshCount = 8;

QString localeOf(const Request& request)
{
    return normalizeLocale(request.queryValue(QStringLiteral("locale")));
}

Reply jobs(const ListingReader& reader, const Request& request)
{
    const JobFilter filter = JobFilter::from(request);
    const int page = std::max(1, request.queryValue(QStringLiteral("page")).toInt());
    int total = 0;
    const QJsonArray items = reader.page(filter, localeOf(request), page, total);
    return Envelope::list(items,
                          {{QStringLiteral("page"), page},
                           {QStringLiteral("per"), ListingReader::pageSize},
                           {QStringLiteral("total"), total},
                           {QStringLiteral("more"), page * ListingReader::pageSize < total},
                           {QStringLiteral("postedToday"), reader.postedToday(filter.kind)}});
}

Reply board(const ListingReader& reader, const Request& request)
{
    const QString kind = request.queryValue(QStringLiteral("kind")) == QLatin1String("gig")
                             ? QStringLiteral("gig")
                             : QStringLiteral("vacancy");
    return Envelope::ok(QJsonObject{
        {QStringLiteral("postedToday"), reader.postedToday(kind)},
        {QStringLiteral("categories"), reader.counts(kind, QStringLiteral("category"))},
        {QStringLiteral("cities"), reader.counts(kind, QStringLiteral("city"))},
        {QStringLiteral("fresh"), reader.freshest(kind, localeOf(request), freshCount)}});
}

Reply job(const ListingReader& reader, const Request& request)
{
    const auto detail = reader.detail(
        request.params.value(QStringLiteral("ref")).toUpper(), localeOf(request),
        request.queryValue(QStringLiteral("forms")) == QLatin1String("1"), request.origin);
    return detail ? Envelope::ok(*detail) : Envelope::notFound();
}

} // namespace

void install(Router& router, Context& context)
{
    auto reader = std::make_shared<ListingReader>(context.store, context.clock);
    const QString base = QStringLiteral("/api/app/v1/");
    router.add("GET", base + QStringLiteral("jobs"),
               [reader](const Request& r) { return jobs(*reader, r); });
    router.add("GET", base + QStringLiteral("board"),
               [reader](const Request& r) { return board(*reader, r); });
    router.add("GET", base + QStringLiteral("jobs/{ref}"),
               [reader](const Request& r) { return job(*reader, r); });
}

} // namespace vl::BoardRoutes
