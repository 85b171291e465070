#include "sandbox/routes/ApplyRoutes.h"

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Locale.h"
#include "sandbox/Router.h"
#include "sandbox/applying/Applications.h"
#include "sandbox/applying/CvReader.h"
#include "sandbox/applying/SeasonScores.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/SeekerSessions.h"
#include "sandbox/board/ApplyForm.h"
#include "sandbox/http/Envelope.h"
#include "sandbox/http/Multipart.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <memory>

namespace vl::ApplyRoutes {

namespace {

constexpr qint64 cvLimit = 5 * 1024 * 1024;
constexpr qint64 repeatWindow = 30 * Clock::day;
constexpr int hourlyLimit = 20;

bool acceptedMime(const QString& filename)
{
    const QString lower = filename.toLower();
    return lower.endsWith(QLatin1String(".pdf")) || lower.endsWith(QLatin1String(".doc")) ||
           lower.endsWith(QLatin1String(".docx"));
}

bool blank(const QString& text)
{
    return text.trimmed().isEmpty();
}

// The first refusal the form of a listing gives this application, or an empty code.
QString formRefusal(const QJsonObject& form, const Multipart& body, bool hasCv)
{
    auto required = [&](const char* slot) {
        return form.value(QLatin1String(slot)).toString() == QLatin1String("required");
    };
    if (blank(body.field(QStringLiteral("name"))) ||
        ((form.isEmpty() || required("cv")) && !hasCv) ||
        (required("message") && blank(body.field(QStringLiteral("message")))) ||
        (required("phone") && blank(body.field(QStringLiteral("phone")))))
        return QStringLiteral("required");
    for (const auto& value : form.value(QStringLiteral("fields")).toArray()) {
        const QJsonObject field = value.toObject();
        if (field.value(QStringLiteral("required")).toBool() &&
            blank(body.field(QStringLiteral("a_") + field.value(QStringLiteral("id")).toString())))
            return QStringLiteral("answers");
    }
    return {};
}

QString answersOf(const Multipart& body)
{
    QJsonObject answers;
    for (auto it = body.fields.begin(); it != body.fields.end(); ++it) {
        if (it.key().startsWith(QLatin1String("a_")))
            answers.insert(it.key().mid(2), it.value());
    }
    return QString::fromUtf8(QJsonDocument(answers).toJson(QJsonDocument::Compact));
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_context(context)
        , m_applications(context.store, context.clock)
        , m_scores(context.store)
        , m_sessions(context.store, context.clock)
        , m_seekers(context.store, context.clock)
    {
    }

    Reply apply(const Request& request)
    {
        const auto seeker = m_sessions.seekerOf(request);
        if (!seeker)
            return Envelope::fail(401, QStringLiteral("signin"));
        const auto body = Multipart::parse(request);
        if (!body)
            return Envelope::badInput(QStringLiteral("required"));
        const QString lang = normalizeLocale(request.queryValue(QStringLiteral("locale")));
        const auto listing = m_applications.listing(body->field(QStringLiteral("job")), lang);
        if (!listing)
            return Envelope::notFound();
        if (listing->applyOnWeb)
            return Envelope::badInput(QStringLiteral("form_web_only"));
        const auto cv = body->file(QStringLiteral("cv"));
        if (cv && !acceptedMime(cv->filename))
            return Envelope::badInput(QStringLiteral("cv_type"));
        if (cv && cv->data.size() > cvLimit)
            return Envelope::fail(413, QStringLiteral("cv_size"));
        const QJsonObject form =
            listing->formKey.isEmpty() ? QJsonObject() : ApplyForm::toJson(listing->formKey, lang);
        if (const QString code = formRefusal(form, *body, cv.has_value()); !code.isEmpty())
            return Envelope::badInput(code);
        const QString email = m_seekers.emailOf(*seeker);
        const qint64 now = m_context.clock.now();
        if (m_applications.sentSince(email, listing->ref, now - repeatWindow))
            return Envelope::fail(409, QStringLiteral("already"));
        if (m_applications.countSince(email, now - 3600) >= hourlyLimit)
            return Envelope::rateLimited();
        return send(*seeker, email, *listing, *body, cv, lang);
    }

    Reply enquiry(const Request& request)
    {
        const auto seeker = m_sessions.seekerOf(request);
        if (!seeker)
            return Envelope::fail(401, QStringLiteral("signin"));
        const QJsonObject body = request.json();
        const auto listing =
            m_applications.listing(body.value(QStringLiteral("job")).toString(), QString());
        if (!listing)
            return Envelope::notFound();
        const QString name = body.value(QStringLiteral("name")).toString().trimmed();
        const QString message = body.value(QStringLiteral("message")).toString().trimmed();
        if (name.size() < 2 || message.size() < 10)
            return Envelope::badInput(QStringLiteral("required"));
        Applications::New question;
        question.seeker = seeker;
        question.email = m_seekers.emailOf(*seeker);
        question.listingRef = listing->ref;
        question.kind = QStringLiteral("enquiry");
        question.name = name;
        question.phone = body.value(QStringLiteral("phone")).toString().trimmed();
        question.message = message;
        const auto sent = m_applications.insert(question);
        return Envelope::ok(
            QJsonObject{{QStringLiteral("ref"), sent.ref}, {QStringLiteral("token"), sent.token}});
    }

    Reply check(const Request& request)
    {
        const auto body = Multipart::parse(request);
        const auto cv = body ? body->file(QStringLiteral("cv")) : std::nullopt;
        if (!cv)
            return Envelope::badInput(QStringLiteral("required"));
        if (!acceptedMime(cv->filename))
            return Envelope::badInput(QStringLiteral("cv_type"));
        if (cv->data.size() > cvLimit)
            return Envelope::fail(413, QStringLiteral("cv_size"));
        const QString lang = normalizeLocale(body->field(QStringLiteral("locale")));
        const auto listing = m_applications.listing(body->field(QStringLiteral("job")), lang);
        if (!listing)
            return Envelope::notFound();
        const auto text = CvReader::text(cv->data, QString::fromUtf8(cv->mime));
        return Envelope::ok(
            CvReader::check(text, listing->text, listing->ref, listing->title, lang));
    }

    Reply highscores(const Request& request)
    {
        if (request.queryValue(QStringLiteral("scope")) != QLatin1String("me"))
            return Envelope::notFound();
        const auto seeker = m_sessions.seekerOf(request);
        if (!seeker)
            return Envelope::ok(QJsonObject{});
        return Envelope::ok(m_scores.meOnly(
            *seeker, normalizeLocale(request.queryValue(QStringLiteral("locale")))));
    }

private:
    Reply send(qint64 seeker, const QString& email, const Applications::Listing& listing,
               const Multipart& body, const std::optional<Multipart::File>& cv, const QString& lang)
    {
        const auto rankBefore = m_scores.rank(seeker);
        const bool gold = body.field(QStringLiteral("gold_ticket")) == QLatin1String("1") &&
                          m_scores.ticketsLeft(seeker) > 0;
        Applications::New application;
        application.seeker = seeker;
        application.email = email;
        application.listingRef = listing.ref;
        application.kind = QStringLiteral("application");
        application.name = body.field(QStringLiteral("name")).trimmed();
        application.phone = body.field(QStringLiteral("phone")).trimmed();
        application.message = body.field(QStringLiteral("message")).trimmed();
        application.pool = body.field(QStringLiteral("pool")) != QLatin1String("0");
        application.answers = answersOf(body);
        if (cv) {
            application.cvName = cv->filename;
            application.cvMime = QString::fromUtf8(cv->mime);
            application.cvData = cv->data;
        }
        application.gold = gold;
        const auto sent = m_applications.insert(application);
        return Envelope::ok(QJsonObject{
            {QStringLiteral("ref"), sent.ref},
            {QStringLiteral("token"), sent.token},
            {QStringLiteral("hsText"), m_scores.moment(seeker, rankBefore, gold, lang)}});
    }

    Context& m_context;
    Applications m_applications;
    SeasonScores m_scores;
    SeekerSessions m_sessions;
    SeekerAccounts m_seekers;
};

} // namespace

void install(Router& router, Context& context)
{
    auto handlers = std::make_shared<Handlers>(context);
    const QString base = QStringLiteral("/api/app/v1/");
    router.add("POST", base + QStringLiteral("apply"),
               [handlers](const Request& r) { return handlers->apply(r); });
    router.add("POST", base + QStringLiteral("enquiry"),
               [handlers](const Request& r) { return handlers->enquiry(r); });
    router.add("POST", base + QStringLiteral("fit/check"),
               [handlers](const Request& r) { return handlers->check(r); });
    router.add("GET", base + QStringLiteral("highscores"),
               [handlers](const Request& r) { return handlers->highscores(r); });
}

} // namespace vl::ApplyRoutes
