#pragma once

#include "core/json/Json.h"
#include "core/reputation/Highscores.h"

#include <optional>

namespace vl {

// The reply to an application or a question: its reference and the key that opens it later.
struct CandidateCredential {
    QString ref;
    QString token;
    std::optional<HsMoment> hsText;
    VL_JSON_FIELDS(CandidateCredential, ref, token, hsText)
};

} // namespace vl
