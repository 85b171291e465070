#pragma once

#include "core/session/ConfigPayload.h"

#include <optional>

namespace vl {

// What the version gates of a config answer say to a build of this number.
struct UpdateRequired {
    QString storeUrl;
    QString testflightUrl;
    bool operator==(const UpdateRequired&) const = default;
};

struct UpdateAvailable {
    qint64 build = 0;
    QString url;
    bool operator==(const UpdateAvailable&) const = default;
};

// Closed when minBuild is at least 1 and above this build. The store address is the first
// non-empty of updateUrl, storeUrl and the site; the pre-release one falls back to it.
std::optional<UpdateRequired> updateRequired(const ConfigPayload& config, qint64 build,
                                             const QString& site);

// Where a build held at the gate goes: the pre-release channel for a pre-release build, the
// store otherwise.
QString gateUrl(const UpdateRequired& gate, bool prerelease);

// Offered when latestBuild is above this build and there is somewhere to get it.
std::optional<UpdateAvailable> updateAvailable(const ConfigPayload& config, qint64 build);

// Where a person who asks to check for updates is sent: the first non-empty of updateUrl,
// storeUrl and the site.
QString updatePage(const ConfigPayload& config, const QString& site);

} // namespace vl
