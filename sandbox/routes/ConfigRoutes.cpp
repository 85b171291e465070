#include "sandbox/routes/ConfigRoutes.h"

#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/SandboxOptions.h"
#include "sandbox/board/Taxonomy.h"
#include "sandbox/http/Envelope.h"

namespace vl::ConfigRoutes {

namespace {

// Bumped whenever the taxonomy or the flags change, so that clients can tell.
constexpr int revision = 7;

QJsonObject config(const SandboxOptions& options)
{
    QJsonObject data{
        {QStringLiteral("rev"), revision},
        {QStringLiteral("features"), QJsonObject{{QStringLiteral("fit"), true},
                                                 {QStringLiteral("matches"), true},
                                                 {QStringLiteral("cvCheck"), true},
                                                 {QStringLiteral("candidatePush"), true},
                                                 {QStringLiteral("gigs"), true}}},
        {QStringLiteral("locales"),
         QJsonArray{QStringLiteral("ka"), QStringLiteral("en"), QStringLiteral("ru")}},
        {QStringLiteral("categories"), Taxonomy::toJson(Taxonomy::categories())},
        {QStringLiteral("cities"), Taxonomy::toJson(Taxonomy::cities())},
        {QStringLiteral("employmentTypes"), Taxonomy::toJson(Taxonomy::employmentTypes())},
    };
    if (options.minBuild)
        data.insert(QStringLiteral("minBuild"), *options.minBuild);
    if (options.latestBuild)
        data.insert(QStringLiteral("latestBuild"), *options.latestBuild);
    if (!options.updateUrl.isEmpty())
        data.insert(QStringLiteral("updateUrl"), options.updateUrl);
    if (!options.storeUrl.isEmpty())
        data.insert(QStringLiteral("storeUrl"), options.storeUrl);
    if (!options.testflightUrl.isEmpty())
        data.insert(QStringLiteral("testflightUrl"), options.testflightUrl);
    return data;
}

} // namespace

void install(Router& router, Context& context)
{
    router.add("GET", QStringLiteral("/api/app/v1/config"), [&context](const Request&) {
        return Envelope::ok(config(context.options)).withHeader("Cache-Control", "max-age=300");
    });
}

} // namespace vl::ConfigRoutes
