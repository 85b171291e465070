#include "sandbox/routes/AuthRoutes.h"

#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/Store.h"
#include "sandbox/auth/CodeBook.h"
#include "sandbox/auth/CodeMail.h"
#include "sandbox/auth/EmployerAccounts.h"
#include "sandbox/auth/RateLimit.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/SeekerSessions.h"
#include "sandbox/http/Envelope.h"

namespace vl::AuthRoutes {

namespace {

constexpr qint64 tenMinutes = 600;

QString field(const QJsonObject& body, const char* key)
{
    return body.value(QLatin1String(key)).toString().trimmed();
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_context(context)
        , m_accounts(context.store, context.clock)
        , m_seekers(context.store, context.clock)
        , m_sessions(context.store, context.clock)
        , m_codes(context.store, context.clock, QStringLiteral("employer"))
        , m_requests(context.store, context.clock, QStringLiteral("employer-code"), 5, tenMinutes)
        , m_failures(context.store, context.clock, QStringLiteral("employer-verify"), 10,
                     tenMinutes)
    {
    }

    Reply request(const Request& request)
    {
        const QJsonObject body = request.json();
        const QString email = field(body, "email");
        if (!Secrets::isEmail(email))
            return Envelope::badInput(QStringLiteral("email"));
        // The code's mail and the account's language both come from it: no guess.
        const QString locale = field(body, "locale");
        if (locale.isEmpty())
            return Envelope::badInput(QStringLiteral("required"));
        if (!m_requests.allow(email))
            return Envelope::rateLimited();
        CodeMail::sendEmployerCode(m_context.outbox, email, m_codes.issue(email, locale), locale);
        return Envelope::ok(QJsonObject{});
    }

    Reply verify(const Request& request)
    {
        const QJsonObject body = request.json();
        const QString email = field(body, "email");
        const QString code = field(body, "code");
        if (email.isEmpty() || code.isEmpty())
            return Envelope::badInput(QStringLiteral("required"));
        if (!m_failures.open(email))
            return Envelope::rateLimited();
        const auto locale = m_codes.redeem(email, code);
        if (!locale) {
            m_failures.note(email);
            return Envelope::badInput(QStringLiteral("code"));
        }
        m_failures.reset(email);
        const auto existing = m_accounts.byEmail(email);
        const qint64 id = existing ? *existing : m_accounts.create(email, *locale);
        m_accounts.setLocale(id, *locale);
        const auto seeker = m_seekers.byEmail(email);
        Reply reply = Envelope::ok(QJsonObject{{QStringLiteral("token"), m_accounts.issueToken(id)},
                                               {QStringLiteral("employer"), m_accounts.profile(id)},
                                               {QStringLiteral("seeker"), seeker.has_value()}});
        // The address is proven for both sides: the job seeker's session opens with it.
        if (seeker)
            reply.withHeader("Set-Cookie", SeekerSessions::setCookie(m_sessions.open(*seeker)));
        return reply;
    }

    Reply logout(const Request& request)
    {
        m_accounts.revoke(request.bearer());
        return Envelope::ok(QJsonObject{});
    }

    Reply me(const Request& request)
    {
        const auto id = m_accounts.byToken(request.bearer());
        if (!id)
            return Envelope::unauthorized();
        return Envelope::ok(m_accounts.me(*id, request.origin));
    }

    Reply saveProfile(const Request& request)
    {
        const auto id = m_accounts.byToken(request.bearer());
        if (!id)
            return Envelope::unauthorized();
        const QJsonObject body = request.json();
        const QString name = field(body, "name");
        if (name.isEmpty())
            return Envelope::badInput(QStringLiteral("required"));
        m_accounts.update(*id, name, field(body, "website"), field(body, "phone"));
        return Envelope::ok(QJsonObject{{QStringLiteral("employer"), m_accounts.profile(*id)}});
    }

    Reply deleteAccount(const Request& request)
    {
        const auto id = m_accounts.byToken(request.bearer());
        if (!id)
            return Envelope::unauthorized();
        m_accounts.remove(*id);
        return Envelope::ok(QJsonObject{});
    }

private:
    Context& m_context;
    EmployerAccounts m_accounts;
    SeekerAccounts m_seekers;
    SeekerSessions m_sessions;
    CodeBook m_codes;
    RateLimit m_requests;
    RateLimit m_failures;
};

} // namespace

void install(Router& router, Context& context)
{
    auto handlers = std::make_shared<Handlers>(context);
    const QString base = QStringLiteral("/api/app/v1/");
    router.add("POST", base + QStringLiteral("auth/request"),
               [handlers](const Request& r) { return handlers->request(r); });
    router.add("POST", base + QStringLiteral("auth/verify"),
               [handlers](const Request& r) { return handlers->verify(r); });
    router.add("POST", base + QStringLiteral("auth/logout"),
               [handlers](const Request& r) { return handlers->logout(r); });
    router.add("GET", base + QStringLiteral("me"),
               [handlers](const Request& r) { return handlers->me(r); });
    router.add("POST", base + QStringLiteral("me"),
               [handlers](const Request& r) { return handlers->saveProfile(r); });
    router.add("DELETE", base + QStringLiteral("me"),
               [handlers](const Request& r) { return handlers->deleteAccount(r); });
}

} // namespace vl::AuthRoutes
