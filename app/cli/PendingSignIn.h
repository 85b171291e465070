#pragma once

#include "app/identity/CandidateGate.h"

#include <optional>

namespace vl::cli {

// The half-finished job seeker sign-in between two commands: in the user's runtime folder,
// which the system empties at logout, never in a folder that persists.
namespace pendingSignIn {

std::optional<CandidateGate::Pending> load();
void save(const CandidateGate::Pending& pending);
void clear();

QString stepName(CandidateGate::Step step);

} // namespace pendingSignIn
} // namespace vl::cli
