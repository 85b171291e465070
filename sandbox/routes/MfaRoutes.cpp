#include "sandbox/routes/MfaRoutes.h"

#include "sandbox/Clock.h"
#include "sandbox/Context.h"
#include "sandbox/Router.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/SeekerSessions.h"
#include "sandbox/auth/Tickets.h"
#include "sandbox/auth/Totp.h"
#include "sandbox/http/Bare.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <memory>

namespace vl::MfaRoutes {

namespace {

// Where the client lands after signing in; it reads the value and does nothing with it.
const QString afterSignIn = QStringLiteral("/account");

QString field(const QJsonObject& body, const char* key)
{
    return body.value(QLatin1String(key)).toString();
}

QString challenge()
{
    QByteArray bytes(32, Qt::Uninitialized);
    for (char& byte : bytes)
        byte = char(QRandomGenerator::system()->bounded(256));
    return QString::fromLatin1(
        bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_clock(context.clock)
        , m_seekers(context.store, context.clock)
        , m_tickets(context.store, context.clock)
        , m_sessions(context.store, context.clock)
    {
    }

    Reply state(const Request& request)
    {
        const auto ticket = m_tickets.find(field(request.json(), "ticket"));
        if (!ticket)
            return Bare::badTicket();
        return Bare::ok(
            {{QStringLiteral("enrolled"), !m_seekers.secretOf(ticket->seeker).isEmpty()},
             {QStringLiteral("email"), m_seekers.emailOf(ticket->seeker)},
             {QStringLiteral("mailOnly"), m_seekers.mailOnly(ticket->seeker)}});
    }

    Reply continueMailOnly(const Request& request)
    {
        const QString id = field(request.json(), "ticket");
        const auto ticket = m_tickets.find(id);
        if (!ticket)
            return Bare::badTicket();
        if (!m_seekers.mailOnly(ticket->seeker))
            return Bare::error(403, QStringLiteral("second factor required"));
        return signIn(id, *ticket, std::nullopt);
    }

    Reply totpSetup(const Request& request)
    {
        const QString id = field(request.json(), "ticket");
        const auto ticket = m_tickets.find(id);
        if (!ticket)
            return Bare::badTicket();
        if (!m_seekers.secretOf(ticket->seeker).isEmpty())
            return Bare::error(409, QStringLiteral("already enrolled"));
        const QString secret = Totp::newSecret();
        m_tickets.setPendingSecret(id, secret);
        return Bare::ok({{QStringLiteral("secret"), secret}});
    }

    Reply totpEnroll(const Request& request)
    {
        const QJsonObject body = request.json();
        const QString id = field(body, "ticket");
        const auto ticket = m_tickets.find(id);
        if (!ticket)
            return Bare::badTicket();
        if (ticket->pendingSecret.isEmpty())
            return Bare::error(400, QStringLiteral("no setup"));
        if (ticket->failures >= Tickets::maxFailures)
            return Bare::rateLimited();
        if (!Totp::verify(ticket->pendingSecret, field(body, "code"), m_clock.now())) {
            m_tickets.noteFailure(id);
            return Bare::codeMismatch();
        }
        return signIn(id, *ticket, m_seekers.enroll(ticket->seeker, ticket->pendingSecret));
    }

    // Six digits from the authenticator, or one of the recovery codes, in the same box.
    Reply totpLogin(const Request& request)
    {
        const QJsonObject body = request.json();
        const QString id = field(body, "ticket");
        const auto ticket = m_tickets.find(id);
        if (!ticket)
            return Bare::badTicket();
        const QString secret = m_seekers.secretOf(ticket->seeker);
        if (secret.isEmpty())
            return Bare::error(400, QStringLiteral("not enrolled"));
        if (ticket->failures >= Tickets::maxFailures)
            return Bare::rateLimited();
        const QString code = field(body, "code");
        if (!Totp::verify(secret, code, m_clock.now()) &&
            !m_seekers.redeemRecovery(ticket->seeker, code)) {
            m_tickets.noteFailure(id);
            return Bare::codeMismatch();
        }
        return signIn(id, *ticket, std::nullopt);
    }

    Reply registrationOptions(const Request& request)
    {
        const auto ticket = m_tickets.find(field(request.json(), "ticket"));
        if (!ticket)
            return Bare::badTicket();
        const QByteArray user = QByteArray::number(ticket->seeker);
        return Bare::ok(
            {{QStringLiteral("challenge"), challenge()},
             {QStringLiteral("user"),
              QJsonObject{{QStringLiteral("id"),
                           QString::fromLatin1(user.toBase64(QByteArray::Base64UrlEncoding |
                                                             QByteArray::OmitTrailingEquals))}}}});
    }

    Reply assertionOptions(const Request& request)
    {
        if (!m_tickets.find(field(request.json(), "ticket")))
            return Bare::badTicket();
        return Bare::ok({{QStringLiteral("challenge"), challenge()}});
    }

    Reply passkeyOptions(const Request&)
    {
        return Bare::ok({{QStringLiteral("nonce"), Secrets::token(16)},
                         {QStringLiteral("challenge"), challenge()}});
    }

    Reply logout(const Request& request)
    {
        m_sessions.close(request);
        return Bare::ok({}).withHeader("Set-Cookie", SeekerSessions::clearCookie());
    }

private:
    // Ends the ticket in a session: FactorDone with the new recovery codes, if any, and the
    // session cookie.
    Reply signIn(const QString& id, const Tickets::Ticket& ticket,
                 const std::optional<QStringList>& recovery)
    {
        m_tickets.consume(id);
        QJsonObject done{{QStringLiteral("next"), afterSignIn}};
        if (recovery)
            done.insert(QStringLiteral("recovery"), QJsonArray::fromStringList(*recovery));
        return Bare::ok(done).withHeader("Set-Cookie",
                                         SeekerSessions::setCookie(m_sessions.open(ticket.seeker)));
    }

    const Clock& m_clock;
    SeekerAccounts m_seekers;
    Tickets m_tickets;
    SeekerSessions m_sessions;
};

} // namespace

void install(Router& router, Context& context)
{
    auto h = std::make_shared<Handlers>(context);
    const QString mfa = QStringLiteral("/api/candidate/mfa/");
    router.add("POST", mfa + QStringLiteral("state"),
               [h](const Request& r) { return h->state(r); });
    router.add("POST", mfa + QStringLiteral("continue"),
               [h](const Request& r) { return h->continueMailOnly(r); });
    router.add("POST", mfa + QStringLiteral("totp-setup"),
               [h](const Request& r) { return h->totpSetup(r); });
    router.add("POST", mfa + QStringLiteral("totp-enroll"),
               [h](const Request& r) { return h->totpEnroll(r); });
    router.add("POST", mfa + QStringLiteral("totp-login"),
               [h](const Request& r) { return h->totpLogin(r); });
    router.add("POST", mfa + QStringLiteral("reg-options"),
               [h](const Request& r) { return h->registrationOptions(r); });
    router.add("POST", mfa + QStringLiteral("auth-options"),
               [h](const Request& r) { return h->assertionOptions(r); });
    router.add("POST", mfa + QStringLiteral("reg-verify"), [](const Request&) {
        return Bare::error(400, QStringLiteral("passkeys are not available here"));
    });
    router.add("POST", mfa + QStringLiteral("auth-verify"), [](const Request&) {
        return Bare::error(400, QStringLiteral("unknown credential"));
    });
    router.add("POST", QStringLiteral("/api/candidate/passkey/options"),
               [h](const Request& r) { return h->passkeyOptions(r); });
    router.add("POST", QStringLiteral("/api/candidate/passkey/verify"), [](const Request&) {
        return Bare::error(400, QStringLiteral("unknown credential"));
    });
    router.add("POST", QStringLiteral("/api/candidate/logout"),
               [h](const Request& r) { return h->logout(r); });
}

} // namespace vl::MfaRoutes
