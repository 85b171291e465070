#include "sandbox/SandboxOptions.h"

#include "sandbox/Clock.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <QTextStream>

namespace vl {

namespace {

QString defaultDatabase()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return folder + QStringLiteral("/sandbox.sqlite");
}

std::optional<SandboxOptions> fail(const QString& message)
{
    QTextStream(stderr) << "velmora-sandbox: " << message << '\n';
    return std::nullopt;
}

} // namespace

std::optional<SandboxOptions> SandboxOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A local stand-in for the Velmora web service, on loopback only."));
    parser.addHelpOption();
    const QCommandLineOption port(QStringLiteral("port"),
                                  QStringLiteral("Port to listen on; 0 picks a free one."),
                                  QStringLiteral("N"), QStringLiteral("4321"));
    const QCommandLineOption db(QStringLiteral("db"),
                                QStringLiteral("SQLite file, or :memory: for a throw-away store."),
                                QStringLiteral("PATH"));
    const QCommandLineOption now(QStringLiteral("now"),
                                 QStringLiteral("Fix the clock at this ISO 8601 instant."),
                                 QStringLiteral("ISO8601"));
    const QCommandLineOption minBuild(QStringLiteral("min-build"),
                                      QStringLiteral("Oldest client build allowed to run."),
                                      QStringLiteral("N"));
    const QCommandLineOption latestBuild(QStringLiteral("latest-build"),
                                         QStringLiteral("Newest client build."),
                                         QStringLiteral("N"));
    const QCommandLineOption updateUrl(QStringLiteral("update-url"),
                                       QStringLiteral("Where updates come from."),
                                       QStringLiteral("U"));
    const QCommandLineOption storeUrl(QStringLiteral("store-url"),
                                      QStringLiteral("The store page."), QStringLiteral("U"));
    const QCommandLineOption testflightUrl(QStringLiteral("testflight-url"),
                                           QStringLiteral("The pre-release channel page."),
                                           QStringLiteral("U"));
    parser.addOptions({port, db, now, minBuild, latestBuild, updateUrl, storeUrl, testflightUrl});
    if (!parser.parse(arguments))
        return fail(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();

    SandboxOptions options;
    bool ok = false;
    const uint portValue = parser.value(port).toUInt(&ok);
    if (!ok || portValue > 65535)
        return fail(QStringLiteral("--port wants a number from 0 to 65535"));
    options.port = quint16(portValue);
    options.database = parser.isSet(db) ? parser.value(db) : defaultDatabase();
    if (parser.isSet(now)) {
        options.now = Clock::parse(parser.value(now));
        if (!options.now)
            return fail(QStringLiteral("--now wants an ISO 8601 instant"));
    }
    for (const auto& [option, target] :
         {std::pair{&minBuild, &options.minBuild}, std::pair{&latestBuild, &options.latestBuild}}) {
        if (!parser.isSet(*option))
            continue;
        const qint64 value = parser.value(*option).toLongLong(&ok);
        if (!ok)
            return fail(QStringLiteral("--%1 wants a number").arg(option->names().constFirst()));
        *target = value;
    }
    options.updateUrl = parser.value(updateUrl);
    options.storeUrl = parser.value(storeUrl);
    options.testflightUrl = parser.value(testflightUrl);
    return options;
}

} // namespace vl
