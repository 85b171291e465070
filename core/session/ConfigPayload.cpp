#include "core/session/ConfigPayload.h"

#include <algorithm>

namespace vl {

QString ConfigPayload::Entry::label(Lang lang) const
{
    if (const auto it = labels.find(rawValue(lang)); it != labels.end())
        return it->second;
    if (const auto it = labels.find(QStringLiteral("en")); it != labels.end())
        return it->second;
    return key;
}

bool ConfigPayload::isOn(Feature feature) const
{
    if (!features)
        return true;
    const auto flag = [&]() -> const std::optional<bool>& {
        switch (feature) {
        case Feature::fit:
            return features->fit;
        case Feature::matches:
            return features->matches;
        case Feature::cvCheck:
            return features->cvCheck;
        case Feature::candidatePush:
            return features->candidatePush;
        case Feature::gigs:
            break;
        }
        return features->gigs;
    }();
    return flag.value_or(true);
}

QString labelOf(const std::vector<ConfigPayload::Entry>& list, const QString& key, Lang lang)
{
    const auto it = std::find_if(list.begin(), list.end(), [&](const ConfigPayload::Entry& entry) {
        return entry.key == key;
    });
    return it == list.end() ? key : it->label(lang);
}

} // namespace vl
