#pragma once

// The two reply conventions of the job seeker's sign-in calls, beside the general envelope.

#include "core/json/Json.h"
#include "core/service/Result.h"

#include <optional>

namespace vl {

template <class T>
struct AppEnvelope {
    bool ok = false;
    std::optional<T> data;
    std::optional<QString> error;
    VL_JSON_FIELDS(AppEnvelope, ok, data, error)
};

struct Adopted {
    QString email;
    VL_JSON_FIELDS(Adopted, email)
};

namespace candidateReply {

// Calls under /api/app/v1/candidate: an envelope that says no without a code reads as a wrong
// code, and so does one that says yes without data.
template <class T>
Result<T> readEnvelope(const QByteArray& body, int status)
{
    auto envelope = json::decode<AppEnvelope<T>>(body);
    if (!envelope)
        return APIError::http(status);
    if (envelope->ok && envelope->data)
        return std::move(*envelope->data);
    return APIError::server(envelope->error.value_or(QStringLiteral("code")));
}

} // namespace candidateReply
} // namespace vl
