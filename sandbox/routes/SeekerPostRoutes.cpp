#include "sandbox/routes/SeekerPostRoutes.h"

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Locale.h"
#include "sandbox/Router.h"
#include "sandbox/Store.h"
#include "sandbox/auth/EmployerAccounts.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/http/Envelope.h"

#include <QSqlQuery>
#include <memory>

namespace vl::SeekerPostRoutes {

namespace {

// A post is read by a person before it goes live.
constexpr qint64 reviewDelay = 600;
constexpr int postsPerDay = 3;

QString languageOf(const QString& text)
{
    for (const QChar c : text) {
        if (c.unicode() >= 0x10A0 && c.unicode() <= 0x10FF)
            return QStringLiteral("ka");
        if (c.unicode() >= 0x0400 && c.unicode() <= 0x04FF)
            return QStringLiteral("ru");
    }
    return QStringLiteral("en");
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_context(context)
        , m_employers(context.store, context.clock)
    {
    }

    Reply post(const Request& request)
    {
        const QJsonObject body = request.json();
        auto value = [&](const char* key) {
            return body.value(QLatin1String(key)).toString().trimmed();
        };
        for (const char* key : {"name", "email", "age", "title", "description"}) {
            if (value(key).isEmpty())
                return Envelope::badInput(QStringLiteral("seek.") + QLatin1String(key));
        }
        if (!Secrets::isEmail(value("email")))
            return Envelope::badInput(QStringLiteral("seek.email"));
        const qint64 now = m_context.clock.now();
        if (m_context.store
                .scalar(QStringLiteral("SELECT COUNT(*) FROM seeker_posts WHERE email = ? AND "
                                       "created_at > ?"),
                        {value("email"), now - Clock::day})
                .toInt() >= postsPerDay)
            return Envelope::fail(429, QStringLiteral("post.daily"));
        const QString ref = QStringLiteral("S-") + Secrets::token(4).toUpper();
        const QString key = Secrets::token(16);
        m_context.store.exec(
            QStringLiteral("INSERT INTO seeker_posts(ref, manage_key, name, email, phone, age, "
                           "title, description, category, city, type, lang, created_at, live_at) "
                           "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {ref, key, value("name"), value("email"), value("phone"), value("age"), value("title"),
             value("description"), value("category"), value("city"), value("type"),
             languageOf(value("title") + value("description")), now, now + reviewDelay});
        return Envelope::ok(
            QJsonObject{{QStringLiteral("ref"), ref}, {QStringLiteral("manageKey"), key}});
    }

    Reply detail(const Request& request)
    {
        QSqlQuery row = m_context.store.exec(
            QStringLiteral("SELECT ref, name, title, category, city, type, live_at, description, "
                           "lang FROM seeker_posts WHERE ref = ? AND live_at <= ?"),
            {request.params.value(QStringLiteral("ref")).toUpper(), m_context.clock.now()});
        if (!row.next())
            return Envelope::notFound();
        const QString ref = row.value(0).toString();
        return Envelope::ok(QJsonObject{
            {QStringLiteral("ref"), ref},
            {QStringLiteral("name"), row.value(1).toString()},
            {QStringLiteral("title"), row.value(2).toString()},
            {QStringLiteral("category"), row.value(3).toString()},
            {QStringLiteral("city"), row.value(4).toString()},
            {QStringLiteral("employmentType"), row.value(5).toString()},
            {QStringLiteral("translated"), false},
            {QStringLiteral("publishedAt"), Clock::iso(row.value(6).toLongLong())},
            {QStringLiteral("description"), row.value(7).toString()},
            {QStringLiteral("lang"), row.value(8).toString()},
            {QStringLiteral("siteUrl"), request.origin + QStringLiteral("/seekers/") + ref}});
    }

    Reply contact(const Request& request)
    {
        const auto employer = m_employers.byToken(request.bearer());
        if (!employer)
            return Envelope::unauthorized();
        const QString ref = request.params.value(QStringLiteral("ref")).toUpper();
        const qint64 now = m_context.clock.now();
        if (!m_context.store
                 .scalar(
                     QStringLiteral("SELECT 1 FROM seeker_posts WHERE ref = ? AND live_at <= ?"),
                     {ref, now})
                 .isValid())
            return Envelope::notFound();
        const QString message =
            request.json().value(QStringLiteral("message")).toString().trimmed();
        if (message.isEmpty())
            return Envelope::badInput(QStringLiteral("required"));
        QVariant thread = m_context.store.scalar(
            QStringLiteral("SELECT id FROM seeker_threads WHERE post_ref = ? AND employer_id = ?"),
            {ref, *employer});
        if (!thread.isValid())
            thread = m_context.store
                         .exec(QStringLiteral("INSERT INTO seeker_threads(post_ref, employer_id, "
                                              "created_at, last_at) VALUES(?, ?, ?, ?)"),
                               {ref, *employer, now, now})
                         .lastInsertId();
        m_context.store.exec(QStringLiteral("INSERT INTO seeker_messages(thread_id, sender, body, "
                                            "created_at) VALUES(?, 'employer', ?, ?)"),
                             {thread, message, now});
        m_context.store.exec(QStringLiteral("UPDATE seeker_threads SET last_at = ? WHERE id = ?"),
                             {now, thread});
        return Envelope::ok(QJsonObject{{QStringLiteral("threadId"), thread.toString()}});
    }

private:
    Context& m_context;
    EmployerAccounts m_employers;
};

} // namespace

void install(Router& router, Context& context)
{
    auto handlers = std::make_shared<Handlers>(context);
    const QString base = QStringLiteral("/api/app/v1/");
    router.add("POST", base + QStringLiteral("seekers/post"),
               [handlers](const Request& r) { return handlers->post(r); });
    router.add("GET", base + QStringLiteral("seekers/{ref}"),
               [handlers](const Request& r) { return handlers->detail(r); });
    router.add("POST", base + QStringLiteral("seekers/{ref}/contact"),
               [handlers](const Request& r) { return handlers->contact(r); });
}

} // namespace vl::SeekerPostRoutes
