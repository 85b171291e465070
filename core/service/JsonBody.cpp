#include "core/service/JsonBody.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace vl {

QByteArray stringBody(std::initializer_list<std::pair<QString, std::optional<QString>>> fields)
{
    QJsonObject object;
    for (const auto& [key, value] : fields) {
        if (value)
            object.insert(key, *value);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace vl
