#pragma once

namespace vl {

// The board's quick-pick chips, each a filter of its own on GET jobs.
struct QuickPicks {
    bool today = false;
    bool remote = false;
    bool noExperience = false;
    bool english = false;
    bool partTime = false;
    bool pay = false;

    bool operator==(const QuickPicks&) const = default;

    int count() const { return today + remote + noExperience + english + partTime + pay; }
};

} // namespace vl
