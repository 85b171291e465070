#include "core/identity/CandidateReplies.h"

namespace vl::candidateReply {

QString factorCode(const std::optional<ErrBody>& body)
{
    if (!body || !body->error)
        return QStringLiteral("generic");
    if (*body->error == QLatin1StringView("code mismatch"))
        return QStringLiteral("code");
    return *body->error;
}

} // namespace vl::candidateReply
