#pragma once

#include "core/json/Json.h"

namespace vl {

// The suggested next action of an account, one of the account panel's keys.
struct NextStepDTO {
    QString key;
    bool urgent = false;
    VL_JSON_FIELDS(NextStepDTO, key, urgent)
};

} // namespace vl
