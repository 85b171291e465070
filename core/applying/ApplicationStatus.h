#pragma once

#include "core/l10n/Lang.h"

#include <QString>

namespace vl {

// The words for an application's status on the job seeker's side; a status the client does not
// know is shown as the service sent it.
QString applicationStatusText(const QString& status, Lang lang);

} // namespace vl
