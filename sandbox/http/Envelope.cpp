#include "sandbox/http/Envelope.h"

namespace vl::Envelope {

Reply ok(const QJsonValue& data)
{
    return Reply::json({{QStringLiteral("ok"), true}, {QStringLiteral("data"), data}});
}

Reply list(const QJsonArray& items, const QJsonObject& meta)
{
    return Reply::json({{QStringLiteral("ok"), true},
                        {QStringLiteral("data"), items},
                        {QStringLiteral("meta"), meta}});
}

Reply fail(int status, const QString& code)
{
    return Reply::json({{QStringLiteral("ok"), false}, {QStringLiteral("error"), code}}, status);
}

Reply badInput(const QString& code)
{
    return fail(400, code);
}

Reply unauthorized()
{
    return fail(401, QStringLiteral("auth"));
}

Reply rateLimited()
{
    return fail(429, QStringLiteral("rate"));
}

Reply notFound()
{
    return fail(404, QStringLiteral("not_found"));
}

} // namespace vl::Envelope
