#include "core/conversations/ConversationRecords.h"

#include <cmath>
#include <initializer_list>

namespace vl::json {

namespace {

void readText(const QJsonObject& object, std::initializer_list<const char*> keys, QString& out)
{
    for (const char* key : keys) {
        const QJsonValue value = object.value(QLatin1StringView(key));
        if (value.isString()) {
            out = value.toString();
            return;
        }
    }
}

void readSeconds(const QJsonObject& object, std::initializer_list<const char*> keys, int& out)
{
    for (const char* key : keys) {
        const QJsonValue value = object.value(QLatin1StringView(key));
        const double seconds = value.toDouble();
        if (value.isDouble() && std::isfinite(seconds) && std::abs(seconds) < 2e9) {
            out = int(std::trunc(seconds));
            return;
        }
    }
}

} // namespace

bool Codec<CallLogDTO>::read(const QJsonValue& v, CallLogDTO& out)
{
    const QJsonObject object = v.toObject();
    const QJsonValue id = object.value(QLatin1StringView("id"));
    if (!v.isObject() || !id.isString())
        return false;
    out = CallLogDTO{};
    out.id = id.toString();
    readText(object, {"kind"}, out.kind);
    readText(object, {"status"}, out.status);
    readText(object, {"callerSide", "caller_side"}, out.callerSide);
    readText(object, {"rangAt", "rang_at"}, out.rangAt);
    readSeconds(object, {"durationS", "duration_s"}, out.durationS);
    return true;
}

QJsonValue Codec<CallLogDTO>::write(const CallLogDTO& v)
{
    return QJsonObject{
        {QStringLiteral("id"), v.id},         {QStringLiteral("kind"), v.kind},
        {QStringLiteral("status"), v.status}, {QStringLiteral("callerSide"), v.callerSide},
        {QStringLiteral("rangAt"), v.rangAt}, {QStringLiteral("durationS"), v.durationS}};
}

} // namespace vl::json
