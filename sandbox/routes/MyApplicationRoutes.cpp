#include "sandbox/routes/MyApplicationRoutes.h"

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Locale.h"
#include "sandbox/Router.h"
#include "sandbox/Store.h"
#include "sandbox/applying/Applications.h"
#include "sandbox/applying/CvReader.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/SeekerSessions.h"
#include "sandbox/http/Envelope.h"
#include "sandbox/http/Multipart.h"

#include <QJsonArray>
#include <QSqlQuery>
#include <memory>

namespace vl::MyApplicationRoutes {

namespace {

constexpr qint64 cvLimit = 5 * 1024 * 1024;

// The language a text is written in, by its letters.
QString languageOf(const QString& text)
{
    int georgian = 0;
    int cyrillic = 0;
    for (const QChar c : text) {
        if (c.unicode() >= 0x10A0 && c.unicode() <= 0x10FF)
            ++georgian;
        else if (c.unicode() >= 0x0400 && c.unicode() <= 0x04FF)
            ++cyrillic;
    }
    if (georgian == 0 && cyrillic == 0)
        return QStringLiteral("en");
    return georgian >= cyrillic ? QStringLiteral("ka") : QStringLiteral("ru");
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_context(context)
        , m_applications(context.store, context.clock)
        , m_sessions(context.store, context.clock)
        , m_seekers(context.store, context.clock)
    {
    }

    Reply myActivity(const Request& request)
    {
        const auto seeker = m_sessions.seekerOf(request);
        if (!seeker)
            return Envelope::unauthorized();
        const QString email = m_seekers.emailOf(*seeker);
        return Envelope::ok(
            QJsonObject{{QStringLiteral("applications"), m_applications.activity(*seeker)},
                        {QStringLiteral("seekerProfiles"), profiles(email)},
                        {QStringLiteral("seekerThreads"), threads(email)}});
    }

    Reply candidateActivity(const Request& request)
    {
        const auto seeker = m_sessions.seekerOf(request);
        if (!seeker)
            return Envelope::unauthorized();
        QJsonArray apps;
        for (const auto& value : m_applications.activity(*seeker)) {
            const QJsonObject app = value.toObject();
            apps.append(
                QJsonObject{{QStringLiteral("id"), app.value(QStringLiteral("ref"))},
                            {QStringLiteral("ref"), app.value(QStringLiteral("ref"))},
                            {QStringLiteral("jobTitle"), app.value(QStringLiteral("jobTitle"))},
                            {QStringLiteral("company"), app.value(QStringLiteral("employerName"))},
                            {QStringLiteral("category"), QString()},
                            {QStringLiteral("status"), app.value(QStringLiteral("status"))},
                            {QStringLiteral("kind"), app.value(QStringLiteral("kind"))},
                            {QStringLiteral("createdAt"), app.value(QStringLiteral("createdAt"))},
                            {QStringLiteral("stage"), app.value(QStringLiteral("status"))},
                            {QStringLiteral("unread"), app.value(QStringLiteral("unread"))}});
        }
        return Envelope::ok(QJsonObject{
            {QStringLiteral("email"), m_seekers.emailOf(*seeker)},
            {QStringLiteral("stats"),
             QJsonObject{{QStringLiteral("applications"), int(apps.size())},
                         {QStringLiteral("opened"), 0},
                         {QStringLiteral("replies"), 0},
                         {QStringLiteral("alerts"), 0},
                         {QStringLiteral("historyEntries"), 0}}},
            {QStringLiteral("completeness"),
             QJsonObject{{QStringLiteral("pct"), 40}, {QStringLiteral("items"), QJsonArray()}}},
            {QStringLiteral("applications"), apps}});
    }

    Reply read(const Request& request)
    {
        const auto id = opened(request, request.queryValue(QStringLiteral("key")));
        return id ? Envelope::ok(m_applications.conversation(*id)) : Envelope::notFound();
    }

    Reply act(const Request& request)
    {
        const QJsonObject body = request.json();
        const auto id = opened(request, body.value(QStringLiteral("key")).toString());
        if (!id)
            return Envelope::notFound();
        const QString action = body.value(QStringLiteral("action")).toString();
        if (action != QLatin1String("withdraw"))
            return Envelope::badInput(QStringLiteral("action"));
        if (m_applications.status(*id) == QLatin1String("withdrawn"))
            return Envelope::badInput(QStringLiteral("closed"));
        m_applications.setStatus(*id, QStringLiteral("withdrawn"));
        return Envelope::ok(QJsonObject{{QStringLiteral("status"), QStringLiteral("withdrawn")}});
    }

    Reply updateCv(const Request& request)
    {
        const auto body = Multipart::parse(request);
        if (!body)
            return Envelope::badInput(QStringLiteral("missing"));
        const auto id = opened(request, body->field(QStringLiteral("key")));
        if (!id)
            return Envelope::notFound();
        const auto cv = body->file(QStringLiteral("cv"));
        if (const QString code = refusal(*id, cv); !code.isEmpty())
            return Envelope::badInput(code);
        const QJsonObject notice =
            m_applications.replaceCv(*id, cv->filename, QString::fromUtf8(cv->mime), cv->data,
                                     body->field(QStringLiteral("note")).trimmed());
        return Envelope::ok(QJsonObject{{QStringLiteral("cv"), m_applications.cv(*id)},
                                        {QStringLiteral("message"), notice}});
    }

    Reply cvFile(const Request& request)
    {
        const auto id = opened(request, request.queryValue(QStringLiteral("key")));
        if (!id || m_applications.cvData(*id).isEmpty())
            return Envelope::notFound();
        Reply reply;
        reply.body = m_applications.cvData(*id);
        return reply.withHeader("Content-Type", "application/octet-stream");
    }

    Reply cvText(const Request& request)
    {
        QSqlQuery row = m_context.store.exec(
            QStringLiteral("SELECT cv_data, cv_mime FROM applications WHERE ref = ? OR id = ?"),
            {request.queryValue(QStringLiteral("id")), request.queryValue(QStringLiteral("id"))});
        if (!row.next() || row.value(0).isNull())
            return Envelope::notFound();
        const QString text =
            CvReader::text(row.value(0).toByteArray(), row.value(1).toString()).value_or(QString());
        return Envelope::ok(QJsonObject{
            {QStringLiteral("text"), text},
            {QStringLiteral("source"), languageOf(text)},
            {QStringLiteral("target"), normalizeLocale(request.queryValue(QStringLiteral("to")))},
            {QStringLiteral("translated"), false},
            {QStringLiteral("partial"), false}});
    }

private:
    std::optional<qint64> opened(const Request& request, const QString& key) const
    {
        return m_applications.open(request.params.value(QStringLiteral("id")), key,
                                   m_sessions.seekerOf(request));
    }

    // Why this CV cannot replace the one the employer has, or an empty code.
    QString refusal(qint64 id, const std::optional<Multipart::File>& cv) const
    {
        const QString status = m_applications.status(id);
        if (status == QLatin1String("withdrawn"))
            return QStringLiteral("closed");
        if (status == QLatin1String("hired") || status == QLatin1String("archived"))
            return status;
        if (m_applications.conversation(id)
                .value(QStringLiteral("application"))
                .toObject()
                .value(QStringLiteral("kind"))
                .toString() == QLatin1String("enquiry"))
            return QStringLiteral("enquiry");
        if (!cv)
            return QStringLiteral("missing");
        if (m_applications.cvLeft(id) <= 0)
            return QStringLiteral("limit");
        const QString lower = cv->filename.toLower();
        if (!lower.endsWith(QLatin1String(".pdf")) && !lower.endsWith(QLatin1String(".doc")) &&
            !lower.endsWith(QLatin1String(".docx")))
            return QStringLiteral("cv_type");
        if (cv->data.size() > cvLimit)
            return QStringLiteral("cv_size");
        if (CvReader::hasMacros(cv->data))
            return QStringLiteral("cv_unsafe");
        if (cv->data == m_applications.cvData(id))
            return QStringLiteral("same");
        return {};
    }

    QJsonArray profiles(const QString& email) const
    {
        QSqlQuery rows = m_context.store.exec(
            QStringLiteral("SELECT ref, title, live_at FROM seeker_posts WHERE email = ? "
                           "ORDER BY created_at DESC"),
            {email});
        QJsonArray out;
        while (rows.next()) {
            const bool live = rows.value(2).toLongLong() <= m_context.clock.now();
            out.append(QJsonObject{{QStringLiteral("ref"), rows.value(0).toString()},
                                   {QStringLiteral("title"), rows.value(1).toString()},
                                   {QStringLiteral("status"),
                                    live ? QStringLiteral("live") : QStringLiteral("review")}});
        }
        return out;
    }

    QJsonArray threads(const QString& email) const
    {
        QSqlQuery rows = m_context.store.exec(
            QStringLiteral(
                "SELECT t.id, t.post_ref, COALESCE(e.name, ''), t.last_at, (SELECT body FROM "
                "seeker_messages m WHERE m.thread_id = t.id ORDER BY created_at DESC, id DESC "
                "LIMIT 1), (SELECT COUNT(*) FROM seeker_messages m WHERE m.thread_id = t.id AND "
                "m.sender = 'employer') FROM seeker_threads t JOIN seeker_posts p ON p.ref = "
                "t.post_ref JOIN employers e ON e.id = t.employer_id WHERE p.email = ? "
                "ORDER BY t.last_at DESC"),
            {email});
        QJsonArray out;
        while (rows.next()) {
            out.append(
                QJsonObject{{QStringLiteral("id"), rows.value(0).toString()},
                            {QStringLiteral("seekerRef"), rows.value(1).toString()},
                            {QStringLiteral("employerName"), rows.value(2).toString()},
                            {QStringLiteral("preview"), rows.value(4).toString()},
                            {QStringLiteral("lastAt"), Clock::iso(rows.value(3).toLongLong())},
                            {QStringLiteral("unread"), rows.value(5).toInt()},
                            {QStringLiteral("contactRequested"), false}});
        }
        return out;
    }

    Context& m_context;
    Applications m_applications;
    SeekerSessions m_sessions;
    SeekerAccounts m_seekers;
};

} // namespace

void install(Router& router, Context& context)
{
    auto handlers = std::make_shared<Handlers>(context);
    const QString base = QStringLiteral("/api/app/v1/");
    router.add("GET", base + QStringLiteral("my/activity"),
               [handlers](const Request& r) { return handlers->myActivity(r); });
    router.add("GET", base + QStringLiteral("candidate/activity"),
               [handlers](const Request& r) { return handlers->candidateActivity(r); });
    router.add("GET", base + QStringLiteral("candidate/{id}"),
               [handlers](const Request& r) { return handlers->read(r); });
    router.add("POST", base + QStringLiteral("candidate/{id}"),
               [handlers](const Request& r) { return handlers->act(r); });
    router.add("POST", base + QStringLiteral("candidate/{id}/cv"),
               [handlers](const Request& r) { return handlers->updateCv(r); });
    router.add("GET", base + QStringLiteral("candidate/{id}/cv"),
               [handlers](const Request& r) { return handlers->cvFile(r); });
    router.add("GET", base + QStringLiteral("cv-text"),
               [handlers](const Request& r) { return handlers->cvText(r); });
}

} // namespace vl::MyApplicationRoutes
