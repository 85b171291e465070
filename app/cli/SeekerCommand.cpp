#include "app/cli/SeekerCommand.h"

#include "app/applying/SeekerContactSheetModel.h"
#include "app/applying/SeekerPostSheetModel.h"
#include "app/cli/CliOutput.h"
#include "app/cli/FormOutput.h"
#include "app/shell/AppContext.h"
#include "core/l10n/L10n.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace vl::cli {

namespace {

using L10n::Key;

const QString usage = QStringLiteral("usage: velmora-cli seeker post JSON | contact REF MESSAGE");

// The sheet's fields from a JSON object; the fields it leaves out keep their defaults.
std::optional<SeekerPostForm> formOf(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return std::nullopt;
    QJsonObject fields = json::write(SeekerPostForm{}).toObject();
    const QJsonObject given = document.object();
    for (auto it = given.begin(); it != given.end(); ++it)
        fields.insert(it.key(), it.value());
    return json::read<SeekerPostForm>(fields);
}

QCoro::Task<int> post(AppContext& context, QString text)
{
    const auto form = formOf(text);
    if (!form)
        co_return printUsage(usage);
    SeekerPostSheetModel sheet(ApplyServices::from(context));
    sheet.form = *form;
    co_await sheet.send();
    if (!sheet.sent())
        co_return printFormError(sheet.error().value_or(QString()), sheet.badField());
    printJson(QJsonObject{
        {QStringLiteral("ref"), *sheet.ref()},
        {QStringLiteral("message"), L10n::text(Key::seekerPosted, context.appState.lang())}});
    co_return 0;
}

QCoro::Task<int> contact(AppContext& context, QString ref, QString message)
{
    const Lang lang = context.appState.lang();
    const ApplyServices services = ApplyServices::from(context);
    auto seeker = co_await services.api.seeker(ref, lang, nullptr);
    if (!seeker)
        co_return printError(seeker.error(), lang);
    SeekerContactSheetModel sheet(services, std::move(seeker).value());
    if (sheet.needsSignIn())
        co_return printFormError(L10n::text(Key::signInToContact, lang));
    sheet.message = message;
    co_await sheet.send();
    if (!sheet.sent())
        co_return printFormError(sheet.error().value_or(QString()));
    printJson(
        QJsonObject{{QStringLiteral("sent"), true},
                    {QStringLiteral("threadId"), sheet.threadId() ? QJsonValue(*sheet.threadId())
                                                                  : QJsonValue(QJsonValue::Null)},
                    {QStringLiteral("message"), L10n::text(Key::contactSent, lang)}});
    co_return 0;
}

} // namespace

QCoro::Task<int> runSeeker(AppContext& context, QStringList args)
{
    const QString action = args.value(0);
    if (action == QLatin1StringView("post") && args.size() == 2)
        co_return co_await post(context, args[1]);
    if (action == QLatin1StringView("contact") && args.size() == 3)
        co_return co_await contact(context, args[1], args[2]);
    co_return printUsage(usage);
}

} // namespace vl::cli
