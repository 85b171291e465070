#include "sandbox/http/Request.h"

#include <QJsonDocument>

namespace vl {

QByteArray Request::header(QByteArrayView name) const
{
    for (const auto& [key, value] : headers) {
        if (QByteArrayView(key).compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

QString Request::queryValue(const QString& key) const
{
    return query.queryItemValue(key, QUrl::FullyDecoded);
}

QJsonObject Request::json() const
{
    return QJsonDocument::fromJson(body).object();
}

QString Request::bearer() const
{
    const QByteArray value = header("authorization").trimmed();
    static constexpr QByteArrayView scheme = "bearer ";
    if (value.size() <= scheme.size() ||
        QByteArrayView(value).first(scheme.size()).compare(scheme, Qt::CaseInsensitive) != 0)
        return {};
    return QString::fromUtf8(value.mid(scheme.size()).trimmed());
}

QString Request::cookie(QByteArrayView name) const
{
    for (const auto& [key, value] : headers) {
        if (QByteArrayView(key).compare("cookie", Qt::CaseInsensitive) != 0)
            continue;
        for (const QByteArray& pair : value.split(';')) {
            const QByteArray trimmed = pair.trimmed();
            const auto eq = trimmed.indexOf('=');
            if (eq > 0 && QByteArrayView(trimmed).first(eq) == name)
                return QString::fromUtf8(trimmed.mid(eq + 1));
        }
    }
    return {};
}

} // namespace vl
