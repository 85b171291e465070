#include "app/cli/CliOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace vl::cli {

void printJson(const QJsonValue& value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    const QByteArray text = document.toJson(QJsonDocument::Compact);
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

int printError(const APIError& error, Lang lang)
{
    QJsonObject object;
    switch (error.kind()) {
    case APIError::Kind::server:
        object = {{QStringLiteral("error"), QStringLiteral("server")},
                  {QStringLiteral("code"), error.code()}};
        break;
    case APIError::Kind::http:
        object = {{QStringLiteral("error"), QStringLiteral("http")},
                  {QStringLiteral("status"), error.status()}};
        break;
    case APIError::Kind::network:
        object = {{QStringLiteral("error"), QStringLiteral("network")}};
        break;
    }
    printJson(object);
    printUsage(error.message(lang));
    return 1;
}

int printUsage(const QString& text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    return 2;
}

} // namespace vl::cli
