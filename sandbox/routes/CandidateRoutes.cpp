#include "sandbox/routes/CandidateRoutes.h"

#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/auth/CodeBook.h"
#include "sandbox/auth/CodeMail.h"
#include "sandbox/auth/EmployerAccounts.h"
#include "sandbox/auth/RateLimit.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/SeekerSessions.h"
#include "sandbox/auth/Tickets.h"
#include "sandbox/http/Envelope.h"

#include <memory>

namespace vl::CandidateRoutes {

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
        , m_seekers(context.store, context.clock)
        , m_employers(context.store, context.clock)
        , m_tickets(context.store, context.clock)
        , m_sessions(context.store, context.clock)
        , m_codes(context.store, context.clock, QStringLiteral("candidate"))
        , m_requests(context.store, context.clock, QStringLiteral("candidate-code"), 5, tenMinutes)
        , m_failures(context.store, context.clock, QStringLiteral("candidate-verify"), 10,
                     tenMinutes)
    {
    }

    Reply code(const Request& request)
    {
        const QJsonObject body = request.json();
        const QString email = field(body, "email");
        if (!Secrets::isEmail(email))
            return Envelope::badInput(QStringLiteral("email"));
        if (!m_requests.allow(email))
            return Envelope::rateLimited();
        const QString locale = field(body, "locale");
        CodeMail::sendCandidateCode(m_context.outbox, email, m_codes.issue(email, locale), locale);
        return Envelope::ok(QJsonObject{{QStringLiteral("sent"), true}});
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
        if (!m_codes.redeem(email, code)) {
            m_failures.note(email);
            return Envelope::badInput(QStringLiteral("code"));
        }
        m_failures.reset(email);
        const qint64 seeker = m_seekers.findOrCreate(email);
        return Envelope::ok(QJsonObject{{QStringLiteral("ticket"), m_tickets.issue(seeker)}});
    }

    // An employer's session vouches for the address, so the seeker side opens without a
    // second factor of its own.
    Reply adopt(const Request& request)
    {
        const auto employer = m_employers.byToken(request.bearer());
        if (!employer)
            return Envelope::unauthorized();
        const QString email = m_employers.emailOf(*employer);
        const qint64 seeker = m_seekers.findOrCreate(email);
        return Envelope::ok(QJsonObject{{QStringLiteral("email"), email}})
            .withHeader("Set-Cookie", SeekerSessions::setCookie(m_sessions.open(seeker)));
    }

private:
    Context& m_context;
    SeekerAccounts m_seekers;
    EmployerAccounts m_employers;
    Tickets m_tickets;
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
    router.add("POST", base + QStringLiteral("candidate/code"),
               [handlers](const Request& r) { return handlers->code(r); });
    router.add("POST", base + QStringLiteral("candidate/verify"),
               [handlers](const Request& r) { return handlers->verify(r); });
    router.add("POST", base + QStringLiteral("candidate/adopt"),
               [handlers](const Request& r) { return handlers->adopt(r); });
}

} // namespace vl::CandidateRoutes
