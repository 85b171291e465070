#include "app/cli/ApplyCommand.h"

#include "app/applying/ApplySheetModel.h"
#include "app/applying/CandidateConversationModel.h"
#include "app/applying/CvUpdateSheetModel.h"
#include "app/applying/EnquirySheetModel.h"
#include "app/applying/MyApplicationsModel.h"
#include "app/cli/CliOutput.h"
#include "app/cli/FormOutput.h"
#include "app/shell/AppContext.h"
#include "core/l10n/L10n.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vl::cli {

namespace {

using L10n::Key;

const QString usage = QStringLiteral(
    "usage: velmora-cli apply send REF [--name N] [--email E] [--phone P] [--message M] "
    "[--cv PATH | --last-cv] [--answer ID=TEXT]... [--pool-out] [--ticket] | check REF PATH | "
    "ask REF --name N --message M [--phone P] | list | open REF | withdraw REF | "
    "cv-update REF PATH [--note T]");

// Options after the positional arguments: "--flag" or "--name value"; repeated ones add up.
struct Options {
    QMultiMap<QString, QString> values;
    QStringList flags;
    bool bad = false;

    static Options parse(const QStringList& args, const QStringList& flagNames)
    {
        Options out;
        for (qsizetype i = 0; i < args.size(); ++i) {
            const QString& arg = args[i];
            if (!arg.startsWith(QLatin1StringView("--"))) {
                out.bad = true;
            } else if (flagNames.contains(arg.mid(2))) {
                out.flags.append(arg.mid(2));
            } else if (i + 1 < args.size()) {
                out.values.insert(arg.mid(2), args[++i]);
            } else {
                out.bad = true;
            }
        }
        return out;
    }
    QString value(const char* name) const { return values.value(QString::fromLatin1(name)); }
    bool has(const char* name) const { return values.contains(QString::fromLatin1(name)); }
    bool flag(const char* name) const { return flags.contains(QString::fromLatin1(name)); }
};

Lang langOf(AppContext& context)
{
    return context.appState.lang();
}

QCoro::Task<std::optional<JobDetail>> listing(AppContext& context, QString ref)
{
    auto read = co_await context.api().jobDetail(ref, langOf(context), nullptr);
    if (!read) {
        printError(read.error(), langOf(context));
        co_return std::nullopt;
    }
    co_return std::move(read).value();
}

int formFailure(const ApplySheetModel& sheet, const CandidateAuth& auth)
{
    if (!auth.signedIn())
        return printSignIn();
    return printFormError(sheet.error().value_or(QString()), sheet.badField(), sheet.webFormOnly());
}

QCoro::Task<int> send(AppContext& context, QString ref, Options options)
{
    const auto job = co_await listing(context, ref);
    if (!job)
        co_return 1;
    ApplySheetModel sheet(ApplyServices::from(context), *job);
    co_await sheet.open();
    if (options.has("name"))
        sheet.name = options.value("name");
    if (options.has("phone"))
        sheet.phone = options.value("phone");
    sheet.message = options.value("message");
    sheet.poolOptOut = options.flag("pool-out");
    sheet.useTicket = options.flag("ticket");
    for (const QString& answer : options.values.values(QStringLiteral("answer"))) {
        const qsizetype eq = answer.indexOf(QLatin1Char('='));
        if (eq > 0)
            sheet.answers[answer.left(eq)] = answer.mid(eq + 1);
    }
    if (options.has("cv") && !sheet.choose(options.value("cv")))
        co_return sheet.error() ? formFailure(sheet, context.candidate)
                                : printUsage(QStringLiteral("cannot read ") + options.value("cv"));
    if (options.flag("last-cv")) {
        if (!sheet.lastCv())
            co_return printFormError(L10n::text(Key::errCvType, langOf(context)));
        co_await sheet.useLastCv();
    }
    co_await sheet.send();
    if (!sheet.sent())
        co_return formFailure(sheet, context.candidate);
    printJson(
        QJsonObject{{QStringLiteral("sent"), true},
                    {QStringLiteral("ref"), sheet.sentRef()},
                    {QStringLiteral("message"), L10n::text(Key::sentApply, langOf(context))},
                    {QStringLiteral("moment"), sheet.moment() ? json::write(*sheet.moment())
                                                              : QJsonValue(QJsonValue::Null)}});
    co_return 0;
}

QCoro::Task<int> check(AppContext& context, QString ref, QString path)
{
    const auto job = co_await listing(context, ref);
    if (!job)
        co_return 1;
    ApplySheetModel sheet(ApplyServices::from(context), *job);
    if (!sheet.choose(path))
        co_return sheet.error() ? printFormError(*sheet.error())
                                : printUsage(QStringLiteral("cannot read ") + path);
    co_await sheet.runCheck();
    printJson(
        QJsonObject{{QStringLiteral("check"),
                     sheet.check() ? json::write(*sheet.check()) : QJsonValue(QJsonValue::Null)},
                    {QStringLiteral("send"), L10n::text(sheet.sendLabel(), langOf(context))}});
    co_return 0;
}

QCoro::Task<int> ask(AppContext& context, QString ref, Options options)
{
    const auto job = co_await listing(context, ref);
    if (!job)
        co_return 1;
    EnquirySheetModel sheet(ApplyServices::from(context), *job);
    sheet.name = options.value("name");
    sheet.message = options.value("message");
    sheet.phone = options.value("phone");
    co_await sheet.send();
    if (!sheet.sent()) {
        if (!context.candidate.signedIn())
            co_return printSignIn();
        co_return printFormError(sheet.error().value_or(QString()));
    }
    printJson(
        QJsonObject{{QStringLiteral("sent"), true},
                    {QStringLiteral("ref"), sheet.sentRef()},
                    {QStringLiteral("message"), L10n::text(Key::sentEnquiry, langOf(context))}});
    co_return 0;
}

QCoro::Task<int> list(AppContext& context)
{
    MyApplicationsModel model(ApplyServices::from(context));
    co_await model.load();
    QJsonArray items;
    for (const ApplicationRow& row : model.rows()) {
        items.append(QJsonObject{{QStringLiteral("ref"), row.ref},
                                 {QStringLiteral("kind"), row.kind},
                                 {QStringLiteral("jobTitle"), row.jobTitle},
                                 {QStringLiteral("employerName"), row.employerName},
                                 {QStringLiteral("status"), row.status},
                                 {QStringLiteral("unread"), row.unread},
                                 {QStringLiteral("lastAt"), row.lastAt},
                                 {QStringLiteral("stored"), row.stored},
                                 {QStringLiteral("reported"), row.reported}});
    }
    printJson(QJsonObject{{QStringLiteral("items"), items}});
    co_return 0;
}

// The conversation of one application, opened with the stored key or else the session.
QCoro::Task<std::unique_ptr<CandidateConversationModel>> opened(AppContext& context, QString ref)
{
    co_await context.candidateStore.open();
    const auto entry = context.candidateStore.entry(ref);
    auto model = std::make_unique<CandidateConversationModel>(ApplyServices::from(context), ref,
                                                              entry ? entry->key : QString());
    co_await model->load();
    co_return model;
}

int failure(AppContext& context, const CandidateConversationModel& model)
{
    if (!model.key().isEmpty() || context.candidate.signedIn())
        return printFormError(model.error().value_or(QString()));
    return printSignIn();
}

QCoro::Task<int> open(AppContext& context, QString ref)
{
    const auto model = co_await opened(context, ref);
    if (!model->conversation())
        co_return failure(context, *model);
    printJson(json::write(*model->conversation()));
    co_return 0;
}

QCoro::Task<int> withdraw(AppContext& context, QString ref)
{
    const auto model = co_await opened(context, ref);
    if (!model->conversation())
        co_return failure(context, *model);
    co_await model->withdraw();
    if (model->error())
        co_return printFormError(*model->error());
    printJson(QJsonObject{{QStringLiteral("status"), model->conversation()->application.status}});
    co_return 0;
}

QCoro::Task<int> updateCv(AppContext& context, QString ref, QString path, Options options)
{
    const auto model = co_await opened(context, ref);
    if (!model->conversation())
        co_return failure(context, *model);
    const auto cv = model->conversation()->application.cv.value_or(CandidateCvDTO{});
    if (!cv.canUpdate)
        co_return printFormError(L10n::text(Key::cvUpdateClosed, langOf(context)));
    CvUpdateSheetModel sheet(ApplyServices::from(context), ref, model->key(), cv);
    sheet.note = options.value("note");
    if (!sheet.choose(path))
        co_return sheet.error() ? printFormError(*sheet.error())
                                : printUsage(QStringLiteral("cannot read ") + path);
    co_await sheet.send();
    if (!sheet.done())
        co_return printFormError(sheet.error().value_or(QString()));
    printJson(
        QJsonObject{{QStringLiteral("updated"), true},
                    {QStringLiteral("message"), L10n::text(Key::cvUpdateDone, langOf(context))},
                    {QStringLiteral("cv"), json::write(sheet.done()->cv)}});
    co_return 0;
}

QCoro::Task<int> dispatch(AppContext& context, QStringList args)
{
    const QString action = args.value(0);
    const QString ref = args.value(1);
    if (action == QLatin1StringView("list") && args.size() == 1)
        co_return co_await list(context);
    if (ref.isEmpty())
        co_return printUsage(usage);
    if (action == QLatin1StringView("open") && args.size() == 2)
        co_return co_await open(context, ref);
    if (action == QLatin1StringView("withdraw") && args.size() == 2)
        co_return co_await withdraw(context, ref);
    if (action == QLatin1StringView("check") && args.size() == 3)
        co_return co_await check(context, ref, args[2]);
    if (action == QLatin1StringView("cv-update") && args.size() >= 3) {
        const Options options = Options::parse(args.mid(3), {});
        if (options.bad)
            co_return printUsage(usage);
        co_return co_await updateCv(context, ref, args[2], options);
    }
    const bool sending = action == QLatin1StringView("send");
    if (!sending && action != QLatin1StringView("ask"))
        co_return printUsage(usage);
    const Options options =
        Options::parse(args.mid(2), {QStringLiteral("last-cv"), QStringLiteral("pool-out"),
                                     QStringLiteral("ticket")});
    if (options.bad || (options.has("cv") && options.flag("last-cv")))
        co_return printUsage(usage);
    if (!context.candidate.signedIn())
        co_return printSignIn();
    if (sending)
        co_return co_await send(context, ref, options);
    co_return co_await ask(context, ref, options);
}

} // namespace

QCoro::Task<int> runApply(AppContext& context, QStringList args)
{
    co_return co_await dispatch(context, std::move(args));
}

} // namespace vl::cli
