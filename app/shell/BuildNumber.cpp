#include "app/shell/BuildNumber.h"

#include <limits>

namespace vl {

qint64 parseBuildNumber(const QString& text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, 10);
    if (text.trimmed().size() != text.size())
        return std::numeric_limits<qint64>::max();
    return ok ? value : std::numeric_limits<qint64>::max();
}

qint64 runningBuildNumber()
{
    return parseBuildNumber(QStringLiteral(VELMORA_BUILD_NUMBER));
}

bool prereleaseBuild()
{
    return VELMORA_PRERELEASE_BUILD != 0;
}

} // namespace vl
