#include "app/cli/FormOutput.h"

#include "app/cli/CliOutput.h"

#include <QJsonObject>

namespace vl::cli {

int printFormError(const QString& message, const std::optional<QString>& badField, bool webFormOnly)
{
    QJsonObject object{{QStringLiteral("error"), QStringLiteral("form")},
                       {QStringLiteral("message"), message}};
    if (badField)
        object.insert(QStringLiteral("badField"), *badField);
    if (webFormOnly)
        object.insert(QStringLiteral("webFormOnly"), true);
    printJson(object);
    printUsage(message);
    return 1;
}

int printSignIn()
{
    printJson(QJsonObject{{QStringLiteral("error"), QStringLiteral("signin")}});
    return 1;
}

} // namespace vl::cli
