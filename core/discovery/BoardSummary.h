#pragma once

#include "core/discovery/JobSummary.h"
#include "core/json/Json.h"

#include <vector>

namespace vl {

// The head of the board: what was posted today, counts per category and city, the newest rows.
struct BoardSummary {
    struct Count {
        QString key;
        int n = 0;
        VL_JSON_FIELDS(Count, key, n)
        bool operator==(const Count&) const = default;
    };

    int postedToday = 0;
    std::vector<Count> categories;
    std::vector<Count> cities;
    std::vector<JobSummary> fresh;

    VL_JSON_FIELDS(BoardSummary, postedToday, categories, cities, fresh)
    bool operator==(const BoardSummary&) const = default;
};

} // namespace vl
