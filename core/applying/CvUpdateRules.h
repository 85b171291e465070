#pragma once

#include "core/l10n/Lang.h"
#include "core/service/APIError.h"

namespace vl::CvUpdateRules {

// A refused CV update: its words, and whether the offer to update should go away.
struct Failure {
    QString message;
    bool refused = false;
};

// `max` is the number of updates the application allows, for the limit's words.
Failure failure(const APIError& error, Lang lang, int max);

} // namespace vl::CvUpdateRules
