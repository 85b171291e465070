#include "core/identity/StoredEntries.h"

namespace vl::json {

bool Codec<QDateTime>::read(const QJsonValue& v, QDateTime& out)
{
    if (!v.isString())
        return false;
    const QDateTime moment = QDateTime::fromString(v.toString(), Qt::ISODateWithMs);
    if (!moment.isValid())
        return false;
    out = moment.toUTC();
    return true;
}

QJsonValue Codec<QDateTime>::write(const QDateTime& v)
{
    return v.toUTC().toString(Qt::ISODateWithMs);
}

} // namespace vl::json
