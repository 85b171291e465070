#include "app/cli/TextsCommand.h"

#include "app/cli/CliOutput.h"
#include "core/l10n/L10n.h"

#include <QJsonObject>

namespace vl::cli {

int runTexts(const QStringList& args)
{
    std::optional<Lang> only;
    if (args.size() == 2 && args[0] == QLatin1StringView("--lang"))
        only = langFromRaw(args[1]);
    if (!args.isEmpty() && !only)
        return printUsage(QStringLiteral("usage: velmora-cli texts [--lang ka|en|ru]"));

    QJsonObject catalogue;
    for (const L10n::Key key : L10n::allKeys()) {
        const QString name = QString(L10n::keyName(key));
        if (only) {
            catalogue.insert(name, L10n::text(key, *only));
            continue;
        }
        QJsonObject texts;
        for (const Lang lang : allLangs)
            texts.insert(rawValue(lang), L10n::text(key, lang));
        catalogue.insert(name, texts);
    }
    printJson(catalogue);
    return 0;
}

} // namespace vl::cli
