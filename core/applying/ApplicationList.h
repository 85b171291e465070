#pragma once

#include "core/applying/MyActivityPayload.h"
#include "core/identity/StoredEntries.h"

#include <vector>

namespace vl {

// One row of My applications: what the service reports, with the key this computer kept.
struct ApplicationRow {
    QString ref{};
    QString kind{};
    QString jobTitle{};
    QString employerName{};
    QString status{};
    int unread = 0;
    QString lastAt{};
    QString key{};         // empty for an application sent from elsewhere
    bool stored = false;   // kept on this computer
    bool reported = false; // in the service's list
};

// Both sources by `ref`: the service's words win, the key comes from the store, rows the
// service no longer reports stay, and the newest activity comes first.
std::vector<ApplicationRow> mergeApplications(const std::vector<CandidateEntry>& stored,
                                              const std::vector<MyActivityPayload::App>& reported);

} // namespace vl
