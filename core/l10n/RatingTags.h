#pragma once

#include "core/l10n/Lang.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>
#include <span>

namespace vl::RatingTags {

// The label of a rating tag; an id outside the table shows as itself.
QString label(QStringView tagId, Lang lang);

// The tags an employer is offered when rating a worker, in the order shown.
std::span<const QLatin1StringView> forWorker();
// The tags a worker is offered when rating an employer, in the order shown.
std::span<const QLatin1StringView> forEmployer();

} // namespace vl::RatingTags
