#pragma once

#include "core/json/Json.h"
#include "core/l10n/Lang.h"

#include <map>
#include <optional>
#include <vector>

namespace vl {

// The answer to GET config: taxonomy, version gates and feature flags.
struct ConfigPayload {
    struct Entry {
        QString key;
        std::map<QString, QString> labels; // by language raw value

        VL_JSON_FIELDS(Entry, key, labels)
        bool operator==(const Entry&) const = default;

        // The label in this language, else the English one, else the key itself.
        QString label(Lang lang) const;
    };

    struct Features {
        std::optional<bool> fit;
        std::optional<bool> matches;
        std::optional<bool> cvCheck;
        std::optional<bool> candidatePush;
        std::optional<bool> gigs;

        VL_JSON_FIELDS(Features, fit, matches, cvCheck, candidatePush, gigs)
        bool operator==(const Features&) const = default;
    };

    enum class Feature { fit, matches, cvCheck, candidatePush, gigs };

    int rev = 0;
    std::optional<QString> updateUrl;
    std::optional<Features> features;
    std::optional<qint64> minBuild;
    std::optional<qint64> latestBuild;
    std::optional<QString> storeUrl;
    std::optional<QString> testflightUrl;
    std::vector<QString> locales;
    std::vector<Entry> categories;
    std::vector<Entry> cities;
    std::vector<Entry> employmentTypes;

    VL_JSON_FIELDS(ConfigPayload, rev, updateUrl, features, minBuild, latestBuild, storeUrl,
                   testflightUrl, locales, categories, cities, employmentTypes)
    bool operator==(const ConfigPayload&) const = default;

    // A flag the service left out, or a features block it left out, counts as on.
    bool isOn(Feature feature) const;
};

// The label of `key` in one of the taxonomy lists, or the key itself when the list lacks it.
QString labelOf(const std::vector<ConfigPayload::Entry>& list, const QString& key, Lang lang);

} // namespace vl
