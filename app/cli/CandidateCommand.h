#pragma once

#include <QCoroTask>
#include <QStringList>

namespace vl {
class AppContext;
}

namespace vl::cli {

// `candidate request-code EMAIL | verify EMAIL CODE | totp-setup | totp-enroll CODE |
// totp-login CODE | continue | sign-out | status`: the job seeker's sign-in, one step a run.
QCoro::Task<int> runCandidate(AppContext& context, QStringList args);

} // namespace vl::cli
