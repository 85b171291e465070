#include "core/session/UpdateGate.h"

namespace vl {

namespace {

std::optional<QString> nonEmpty(const std::optional<QString>& text)
{
    return text && !text->isEmpty() ? text : std::nullopt;
}

} // namespace

std::optional<UpdateRequired> updateRequired(const ConfigPayload& config, qint64 build,
                                             const QString& site)
{
    if (!config.minBuild || *config.minBuild < 1 || build >= *config.minBuild)
        return std::nullopt;
    const QString store = updatePage(config, site);
    return UpdateRequired{store, nonEmpty(config.testflightUrl).value_or(store)};
}

QString gateUrl(const UpdateRequired& gate, bool prerelease)
{
    return prerelease ? gate.testflightUrl : gate.storeUrl;
}

std::optional<UpdateAvailable> updateAvailable(const ConfigPayload& config, qint64 build)
{
    if (!config.latestBuild || build >= *config.latestBuild)
        return std::nullopt;
    const auto url = nonEmpty(config.updateUrl) ? config.updateUrl : nonEmpty(config.storeUrl);
    if (!url)
        return std::nullopt;
    return UpdateAvailable{*config.latestBuild, *url};
}

QString updatePage(const ConfigPayload& config, const QString& site)
{
    return nonEmpty(config.updateUrl).value_or(nonEmpty(config.storeUrl).value_or(site));
}

} // namespace vl
