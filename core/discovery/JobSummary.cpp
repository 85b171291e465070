#include "core/discovery/JobSummary.h"

#include "core/format/Iso8601.h"

namespace vl {

std::optional<QDateTime> JobSummary::boardDate() const
{
    const QString& text = bumpedAt ? *bumpedAt : publishedAt ? *publishedAt : QString();
    return parseIso8601(text);
}

} // namespace vl
