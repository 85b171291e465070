#include "app/service/http/HttpResponseHead.h"

namespace vl {

QByteArray HttpResponseHead::value(QByteArrayView name) const
{
    for (const auto& field : fields) {
        if (name.compare(field.first, Qt::CaseInsensitive) == 0)
            return field.second;
    }
    return {};
}

QList<QByteArray> HttpResponseHead::values(QByteArrayView name) const
{
    QList<QByteArray> found;
    for (const auto& field : fields) {
        if (name.compare(field.first, Qt::CaseInsensitive) == 0)
            found.append(field.second);
    }
    return found;
}

bool HttpResponseHead::has(QByteArrayView name) const
{
    for (const auto& field : fields) {
        if (name.compare(field.first, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

QList<QByteArray> HttpResponseHead::listItems(QByteArrayView name) const
{
    QList<QByteArray> items;
    for (const QByteArray& value : values(name)) {
        for (const QByteArray& item : value.split(',')) {
            const QByteArray trimmed = item.trimmed();
            if (!trimmed.isEmpty())
                items.append(trimmed);
        }
    }
    return items;
}

} // namespace vl
