#pragma once

// The two reply conventions of the job seeker's sign-in calls, beside the general envelope, and
// the records they carry.

#include "core/json/Json.h"
#include "core/service/Envelope.h"
#include "core/service/Result.h"

#include <optional>
#include <vector>

namespace vl {

template <class T>
struct AppEnvelope {
    bool ok = false;
    std::optional<T> data;
    std::optional<QString> error;
    VL_JSON_FIELDS(AppEnvelope, ok, data, error)
};

struct ErrBody {
    std::optional<QString> error;
    VL_JSON_FIELDS(ErrBody, error)
};

struct Sent {
    bool sent = false;
    VL_JSON_FIELDS(Sent, sent)
};

struct Ticket {
    QString ticket;
    VL_JSON_FIELDS(Ticket, ticket)
};

struct Adopted {
    QString email;
    VL_JSON_FIELDS(Adopted, email)
};

struct FactorState {
    bool enrolled = false;
    QString email;
    std::optional<bool> mailOnly;
    VL_JSON_FIELDS(FactorState, enrolled, email, mailOnly)
};

struct FactorDone {
    std::optional<QString> next;
    std::optional<std::vector<QString>> recovery;
    VL_JSON_FIELDS(FactorDone, next, recovery)
};

struct Setup {
    QString secret;
    VL_JSON_FIELDS(Setup, secret)
};

struct RegOptions {
    struct User {
        QString id;
        VL_JSON_FIELDS(User, id)
    };
    QString challenge;
    User user;
    VL_JSON_FIELDS(RegOptions, challenge, user)
};

struct AuthOptions {
    QString challenge;
    VL_JSON_FIELDS(AuthOptions, challenge)
};

struct Options {
    QString nonce;
    QString challenge;
    VL_JSON_FIELDS(Options, nonce, challenge)
};

namespace candidateReply {

// The passkey sign-in's answer; beside the general Done of other operations, hence its own
// namespace.
struct Done {
    QString email;
    VL_JSON_FIELDS(Done, email)
};

// Calls under /api/app/v1: an envelope that says no without a code reads as a wrong code, and
// so does one that says yes without data. The status plays no part once the body decodes.
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

// The service's words for a wrong code on the factor calls, as the general code for one.
QString factorCode(const std::optional<ErrBody>& body);

// Calls under /api/candidate: the bare record below 400, an error text from 400 on.
template <class T>
Result<T> readFactor(const QByteArray& body, int status)
{
    if (status >= 400)
        return APIError::server(factorCode(json::decode<ErrBody>(body)));
    auto record = json::decode<T>(body);
    if (!record)
        return APIError::http(status);
    return std::move(*record);
}

} // namespace candidateReply
} // namespace vl
