#include "sandbox/http/Bare.h"

namespace vl::Bare {

Reply ok(const QJsonObject& record)
{
    return Reply::json(record);
}

Reply error(int status, const QString& text)
{
    return Reply::json({{QStringLiteral("error"), text}}, status);
}

Reply badTicket()
{
    return error(401, QStringLiteral("auth"));
}

Reply codeMismatch()
{
    return error(400, QStringLiteral("code mismatch"));
}

Reply rateLimited()
{
    return error(429, QStringLiteral("rate"));
}

} // namespace vl::Bare
