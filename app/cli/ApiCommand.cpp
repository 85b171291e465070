#include "app/cli/ApiCommand.h"

#include "app/cli/ApiArgs.h"
#include "app/cli/ApplyingOperations.h"
#include "app/cli/CliOutput.h"
#include "app/shell/AppContext.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <functional>
#include <optional>

namespace vl::cli {

namespace {

using namespace api;

template <class T>
QCoro::Task<JsonResult> pageAsJson(QCoro::Task<Result<Page<T>>> task)
{
    const auto result = co_await std::move(task);
    if (!result)
        co_return result.error();
    co_return QJsonValue(QJsonObject{{QStringLiteral("items"), json::write(result->items)},
                                     {QStringLiteral("meta"), json::write(result->meta)}});
}

std::optional<QString> optionalText(const Args& args, const char* name)
{
    const QJsonValue value = args.value(QLatin1StringView(name));
    if (!value.isString())
        return std::nullopt;
    return value.toString();
}

JobKind kindOf(const Args& args)
{
    return jobKindOf(text(args, "kind"));
}

APIClient::QuickPicks picksOf(const Args& args)
{
    const QJsonObject picks = args.value(QLatin1StringView("picks")).toObject();
    return {.today = flag(picks, "today"),
            .remote = flag(picks, "remote"),
            .noExperience = flag(picks, "noExperience"),
            .english = flag(picks, "english"),
            .partTime = flag(picks, "partTime"),
            .pay = flag(picks, "pay")};
}

struct Operation {
    const char* method;
    const char* path;
    std::function<QCoro::Task<JsonResult>(AppContext&, const Args&)> run;
};

const std::vector<Operation>& operations()
{
    static const std::vector<Operation> all{
        {"GET", "config",
         [](AppContext& c, const Args&) { return asJson(c.api().config(nullptr)); }},
        {"GET", "me", [](AppContext& c, const Args&) { return asJson(c.api().me(nullptr)); }},
        {"POST", "me",
         [](AppContext& c, const Args& a) {
             return asJson(
                 c.api().updateMe(text(a, "name"), text(a, "website"), text(a, "phone"), nullptr));
         }},
        {"DELETE", "me",
         [](AppContext& c, const Args&) { return asJson(c.api().deleteMe(nullptr)); }},
        {"POST", "auth/request",
         [](AppContext& c, const Args& a) {
             const Lang locale = langFromRaw(text(a, "locale")).value_or(c.appState.lang());
             return asJson(c.api().authRequest(text(a, "email"), locale, nullptr));
         }},
        {"POST", "auth/verify",
         [](AppContext& c, const Args& a) {
             return asJson(c.api().authVerify(text(a, "email"), text(a, "code"), nullptr));
         }},
        {"POST", "auth/logout",
         [](AppContext& c, const Args& a) {
             return asJson(c.api().authLogout(text(a, "pushToken"), text(a, "voipToken"), nullptr));
         }},
        {"GET", "jobs",
         [](AppContext& c, const Args& a) {
             return pageAsJson(c.api().jobs(
                 kindOf(a), localeOf(c, a),
                 std::max(1, a.value(QLatin1StringView("page")).toInt(1)), text(a, "query"),
                 optionalText(a, "category"), optionalText(a, "city"), optionalText(a, "sort"),
                 flag(a, "direct"), picksOf(a), flag(a, "fresh"), nullptr));
         }},
        {"GET", "board",
         [](AppContext& c, const Args& a) {
             return asJson(c.api().board(kindOf(a), localeOf(c, a), nullptr));
         }},
        {"GET", "jobs/{ref}",
         [](AppContext& c, const Args& a) {
             return asJson(c.api().jobDetail(text(a, "ref"), localeOf(c, a), nullptr));
         }},
    };
    return all;
}

} // namespace

QCoro::Task<int> runApi(AppContext& context, QStringList args)
{
    if (args.size() < 2 || args.size() > 3)
        co_return printUsage(QStringLiteral("usage: velmora-cli api METHOD PATH [JSON]"));
    const QString method = args[0].toUpper();
    const QString path = args[1];
    QJsonObject arguments;
    if (args.size() == 3) {
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(args[2].toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !document.isObject())
            co_return printUsage(
                QStringLiteral("velmora-cli api: the arguments must be a JSON object"));
        arguments = document.object();
    }
    for (const Operation& operation : operations()) {
        if (method != QLatin1StringView(operation.method) ||
            path != QLatin1StringView(operation.path))
            continue;
        const auto result = co_await operation.run(context, arguments);
        if (!result)
            co_return printError(result.error(), context.appState.lang());
        printJson(result.value());
        co_return 0;
    }
    if (isApplyingOperation(method, path)) {
        const auto result = co_await runApplyingOperation(context, method, path, arguments);
        if (!result)
            co_return printError(result.error(), context.appState.lang());
        printJson(result.value());
        co_return 0;
    }
    co_return printUsage(QStringLiteral("velmora-cli api: no operation %1 %2").arg(method, path));
}

} // namespace vl::cli
