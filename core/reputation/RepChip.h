#pragma once

#include "core/json/Json.h"

#include <optional>

namespace vl {

// The reputation chip shown beside a name on a list row.
struct RepChip {
    int completed = 0;
    std::optional<double> stars;

    VL_JSON_FIELDS(RepChip, completed, stars)
    bool operator==(const RepChip&) const = default;
};

} // namespace vl
