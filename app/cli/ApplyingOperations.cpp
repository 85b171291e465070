#include "app/cli/ApplyingOperations.h"

#include "app/applying/ApplyingAPI.h"
#include "app/cli/ApiArgs.h"
#include "app/shell/AppContext.h"

#include <QFile>
#include <functional>

namespace vl::cli {

namespace {

using namespace api;

// The file named by a path argument; its type by its extension, as the sheets decide it.
std::optional<CvFile> fileOf(const Args& args, const char* name)
{
    const QString path = text(args, name);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QString filename = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return CvFile{file.readAll(), filename,
                  CvPick::mimeFor(filename).value_or(QStringLiteral("application/octet-stream"))};
}

ApplyDraft draftOf(const Args& args)
{
    ApplyDraft draft;
    draft.name = text(args, "name");
    draft.phone = text(args, "phone");
    draft.message = text(args, "message");
    draft.cv = fileOf(args, "cv");
    draft.poolOptOut = args.value(QLatin1StringView("pool")).toString() == QLatin1StringView("0");
    draft.useTicket = flag(args, "gold_ticket");
    const QJsonObject answers = args.value(QLatin1StringView("answers")).toObject();
    for (auto it = answers.begin(); it != answers.end(); ++it)
        draft.answers[it.key()] = it.value().toString();
    return draft;
}

SeekerPostForm postOf(const Args& args)
{
    SeekerPostForm form;
    form.name = text(args, "name");
    form.email = text(args, "email");
    form.phone = text(args, "phone");
    form.age = text(args, "age");
    form.headline = text(args, "title");
    form.about = text(args, "description");
    for (auto [key, field] : {std::pair{"category", &form.category}, std::pair{"city", &form.city},
                              std::pair{"type", &form.type}}) {
        if (args.contains(QLatin1StringView(key)))
            *field = text(args, key);
    }
    return form;
}

struct Operation {
    const char* method;
    const char* path;
    std::function<QCoro::Task<JsonResult>(AppContext&, const ApplyingAPI&, const Args&)> run;
};

QCoro::Task<JsonResult> missingFile()
{
    co_return APIError::server(QStringLiteral("cv_type"));
}

const std::vector<Operation>& operations()
{
    using A = const ApplyingAPI&;
    static const std::vector<Operation> all{
        {"POST", "apply",
         [](AppContext& c, A api, const Args& a) {
             const QString email = a.contains(QLatin1StringView("email"))
                                       ? text(a, "email")
                                       : c.candidate.email().value_or(QString());
             const std::optional<HsHint> ticket =
                 flag(a, "gold_ticket")
                     ? std::optional(HsHint{QStringLiteral("ticket"), {}, {}, 1, {}})
                     : std::nullopt;
             return asJson(
                 api.apply(draftOf(a), email, text(a, "job"), ticket, localeOf(c, a), nullptr));
         }},
        {"POST", "enquiry",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.enquiry(text(a, "name"), text(a, "email"), text(a, "phone"),
                                       text(a, "message"), text(a, "job"), nullptr));
         }},
        {"POST", "fit/check",
         [](AppContext& c, A api, const Args& a) {
             const auto cv = fileOf(a, "cv");
             if (!cv)
                 return missingFile();
             return asJson(
                 api.fitCheck(text(a, "job"), localeOf(c, a), *cv, text(a, "key"), nullptr));
         }},
        {"GET", "highscores",
         [](AppContext& c, A api, const Args& a) {
             return asJson(api.highscoresMe(localeOf(c, a), nullptr));
         }},
        {"GET", "my/activity",
         [](AppContext&, A api, const Args&) { return asJson(api.myActivity(nullptr)); }},
        {"GET", "candidate/activity",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.candidateActivity(text(a, "key"), nullptr));
         }},
        {"GET", "candidate/{id}",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.application(text(a, "id"), text(a, "key"), nullptr));
         }},
        {"POST", "candidate/{id}",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.withdraw(text(a, "id"), text(a, "key"), nullptr));
         }},
        {"POST", "candidate/{id}/cv",
         [](AppContext&, A api, const Args& a) {
             const auto cv = fileOf(a, "cv");
             if (!cv)
                 return missingFile();
             return asJson(
                 api.updateCv(text(a, "id"), text(a, "key"), text(a, "note"), *cv, nullptr));
         }},
        {"GET", "cv-text",
         [](AppContext& c, A api, const Args& a) {
             return asJson(api.cvText(text(a, "id"), localeOf(c, a, "to"), nullptr));
         }},
        {"POST", "seekers/post",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.postSeeker(postOf(a), nullptr));
         }},
        {"GET", "seekers/{ref}",
         [](AppContext& c, A api, const Args& a) {
             return asJson(api.seeker(text(a, "ref"), localeOf(c, a), nullptr));
         }},
        {"POST", "seekers/{ref}/contact",
         [](AppContext&, A api, const Args& a) {
             return asJson(api.contactSeeker(text(a, "ref"), text(a, "message"), nullptr));
         }},
    };
    return all;
}

const Operation* find(const QString& method, const QString& path)
{
    for (const Operation& operation : operations()) {
        if (method == QLatin1StringView(operation.method) &&
            path == QLatin1StringView(operation.path))
            return &operation;
    }
    return nullptr;
}

} // namespace

bool isApplyingOperation(const QString& method, const QString& path)
{
    return find(method, path) != nullptr;
}

QCoro::Task<Result<QJsonValue>> runApplyingOperation(AppContext& context, QString method,
                                                     QString path, QJsonObject args)
{
    const ApplyingAPI api(context.api());
    co_return co_await find(method, path)->run(context, api, args);
}

} // namespace vl::cli
