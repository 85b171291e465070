#include "app/cli/ShellCommands.h"

#include "app/cli/CliOutput.h"
#include "app/hiring/EmployerLoginForm.h"
#include "app/shell/AppContext.h"

#include <QJsonObject>

namespace vl::cli {

namespace {

QJsonValue orNull(const std::optional<QString>& text)
{
    return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null);
}

QJsonObject langObject(Lang lang)
{
    return {{QStringLiteral("lang"), rawValue(lang)}};
}

// The form's own error, in the words the window would show.
int formFailure(const EmployerLoginForm& form)
{
    printJson(QJsonObject{{QStringLiteral("error"), QStringLiteral("form")},
                          {QStringLiteral("message"), orNull(form.error())}});
    printUsage(form.error().value_or(QString()));
    return 1;
}

} // namespace

QCoro::Task<int> runBoot(AppContext& context)
{
    co_await context.boot();
    const Taxonomy& taxonomy = context.taxonomy;
    QJsonValue required(QJsonValue::Null);
    if (const auto& gate = taxonomy.updateRequired())
        required = QJsonObject{{QStringLiteral("storeUrl"), gate->storeUrl},
                               {QStringLiteral("testflightUrl"), gate->testflightUrl}};
    QJsonValue available(QJsonValue::Null);
    if (const auto& update = taxonomy.updateAvailable())
        available = QJsonObject{{QStringLiteral("build"), update->build},
                                {QStringLiteral("url"), update->url}};
    QJsonObject out = langObject(context.appState.lang());
    out.insert(QStringLiteral("categories"), int(taxonomy.categories().size()));
    out.insert(QStringLiteral("cities"), int(taxonomy.cities().size()));
    out.insert(QStringLiteral("employmentTypes"), int(taxonomy.employmentTypes().size()));
    out.insert(QStringLiteral("updateRequired"), required);
    out.insert(QStringLiteral("updateAvailable"), available);
    out.insert(QStringLiteral("me"), json::write(context.auth.me()));
    out.insert(QStringLiteral("candidate"), orNull(context.candidate.email()));
    printJson(out);
    co_return 0;
}

int runLang(AppContext& context, const QStringList& args)
{
    if (args.size() > 1)
        return printUsage(QStringLiteral("usage: velmora-cli lang [ka|en|ru]"));
    if (args.size() == 1) {
        const auto lang = langFromRaw(args[0]);
        if (!lang)
            return printUsage(QStringLiteral("velmora-cli lang: one of ka, en, ru"));
        context.appState.setLang(*lang);
    }
    printJson(langObject(context.appState.lang()));
    return 0;
}

QCoro::Task<int> runEmployer(AppContext& context, QStringList args)
{
    const QString action = args.value(0);
    EmployerLoginForm form({context.api(), context.auth, context.candidate, context.appState});
    if (action == QLatin1StringView("request-code") && args.size() == 2) {
        form.email = args[1];
        co_await form.sendCode();
        if (form.stage() != EmployerLoginForm::Stage::code)
            co_return formFailure(form);
        printJson(QJsonObject{{QStringLiteral("sent"), true}});
        co_return 0;
    }
    if (action == QLatin1StringView("verify") && args.size() == 3) {
        form.email = args[1];
        form.code = args[2];
        // Only the service's answer counts: a token kept from an earlier run proves nothing.
        bool signedIn = false;
        QObject::connect(&form, &EmployerLoginForm::done, [&signedIn] { signedIn = true; });
        co_await form.verifyCode();
        if (!signedIn)
            co_return formFailure(form);
        printJson(QJsonObject{{QStringLiteral("signedIn"), true},
                              {QStringLiteral("me"), json::write(context.auth.me())},
                              {QStringLiteral("candidate"), orNull(context.candidate.email())}});
        co_return 0;
    }
    if (action == QLatin1StringView("sign-out") && args.size() == 1) {
        co_await context.auth.logOut();
        printJson(QJsonObject{{QStringLiteral("signedIn"), false}});
        co_return 0;
    }
    co_return printUsage(QStringLiteral(
        "usage: velmora-cli employer request-code EMAIL | verify EMAIL CODE | sign-out"));
}

} // namespace vl::cli
