#include "core/applying/CvCheckPayload.h"

namespace vl {

FindingGroup findingGroup(const QString& severity)
{
    if (severity == QLatin1StringView("fix"))
        return FindingGroup::fix;
    if (severity == QLatin1StringView("improve"))
        return FindingGroup::improve;
    return FindingGroup::good;
}

} // namespace vl
