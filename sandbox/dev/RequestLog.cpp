#include "sandbox/dev/RequestLog.h"

namespace vl {

void RequestLog::record(const Request& request)
{
    QJsonArray headers;
    for (const auto& [name, value] : request.headers)
        headers.append(QJsonArray{QString::fromLatin1(name), QString::fromUtf8(value)});
    m_entries.prepend(
        QJsonObject{{QStringLiteral("method"), QString::fromLatin1(request.method)},
                    {QStringLiteral("path"), request.path},
                    {QStringLiteral("query"), request.rawQuery},
                    {QStringLiteral("headers"), headers},
                    {QStringLiteral("body"), QString::fromLatin1(request.body.toBase64())}});
    if (m_entries.size() > capacity)
        m_entries.resize(capacity);
}

QJsonArray RequestLog::toJson() const
{
    QJsonArray out;
    for (const QJsonObject& entry : m_entries)
        out.append(entry);
    return out;
}

} // namespace vl
