#include "sandbox/routes/OAuthRoutes.h"

#include "sandbox/Context.h"
#include "sandbox/Locale.h"
#include "sandbox/Router.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"
#include "sandbox/auth/SeekerAccounts.h"
#include "sandbox/auth/Tickets.h"

#include <QSqlQuery>
#include <QUrl>
#include <memory>

namespace vl::OAuthRoutes {

namespace {

Trilingual t(const char* ka, const char* en, const char* ru)
{
    return {QString::fromUtf8(ka), QString::fromUtf8(en), QString::fromUtf8(ru)};
}

QString pickUrl(const QString& email, const QString& lang)
{
    return QStringLiteral("/api/candidate/oauth/pick?app=1&hl=%1&email=%2")
        .arg(lang, QString::fromLatin1(QUrl::toPercentEncoding(email)));
}

QByteArray page(const QString& lang, const QString& body)
{
    static const Trilingual title = t("Google-ით შესვლა (სატესტო)", "Sign in with Google (sandbox)",
                                      "Вход через Google (тестовый)");
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\"><head><meta charset=\"utf-8\">"
                          "<title>%2</title><style>body{font-family:sans-serif;max-width:36em;"
                          "margin:3em auto;padding:0 1em}li{margin:.6em 0}small{color:#666}"
                          "</style></head><body><h1>%2</h1>%3</body></html>\n")
        .arg(lang, title.in(lang), body)
        .toUtf8();
}

class Handlers {
public:
    explicit Handlers(Context& context)
        : m_store(context.store)
        , m_seekers(context.store, context.clock)
        , m_tickets(context.store, context.clock)
    {
    }

    Reply accounts(const Request& request)
    {
        const QString lang = normalizeLocale(request.queryValue(QStringLiteral("hl")));
        if (request.queryValue(QStringLiteral("provider")) != QLatin1String("google"))
            return Reply::html(page(lang, QStringLiteral("<p>Unknown provider.</p>")), 400);
        static const Trilingual lead =
            t("აირჩიეთ სატესტო ანგარიში. ეს გვერდი Google-ის შესვლის ნაცვლად ჩანს Velmora-ს "
              "სატესტო სერვერზე.",
              "Choose a test account. This page stands in for Google's sign-in on the Velmora "
              "sandbox.",
              "Выберите тестовую учётную запись. Эта страница заменяет вход через Google на "
              "тестовом сервере Velmora.");
        static const Trilingual other = t("სხვა მისამართი", "Another address", "Другой адрес");
        static const Trilingual go = t("გაგრძელება", "Continue", "Продолжить");
        QString body = QStringLiteral("<p>%1</p><ul>").arg(lead.in(lang));
        QSqlQuery rows = m_store.exec(QStringLiteral(
            "SELECT email, name, totp_secret IS NOT NULL, mail_only FROM seekers ORDER BY id "
            "LIMIT 20"));
        while (rows.next()) {
            const QString email = rows.value(0).toString();
            body += QStringLiteral("<li><a href=\"%1\">%2</a><br><small>%3 · %4</small></li>")
                        .arg(pickUrl(email, lang).toHtmlEscaped(),
                             rows.value(1).toString().toHtmlEscaped(), email.toHtmlEscaped(),
                             factor(rows.value(2).toBool(), rows.value(3).toBool(), lang));
        }
        body += QStringLiteral("</ul><form method=\"get\" action=\"/api/candidate/oauth/pick\">"
                               "<input type=\"hidden\" name=\"app\" value=\"1\">"
                               "<input type=\"hidden\" name=\"hl\" value=\"%1\">"
                               "<label>%2 <input type=\"email\" name=\"email\" required></label> "
                               "<button>%3</button></form>")
                    .arg(lang, other.in(lang), go.in(lang));
        return Reply::html(page(lang, body));
    }

    Reply pick(const Request& request)
    {
        const QString lang = normalizeLocale(request.queryValue(QStringLiteral("hl")));
        const QString email = request.queryValue(QStringLiteral("email")).trimmed();
        if (!Secrets::isEmail(email))
            return Reply::html(page(lang, QStringLiteral("<p>Not an email address.</p>")), 400);
        const QString ticket = m_tickets.issue(m_seekers.findOrCreate(email));
        return Reply::redirect(QByteArray("velm://auth?t=") + ticket.toLatin1() +
                               "&e=" + QUrl::toPercentEncoding(email));
    }

private:
    static QString factor(bool authenticator, bool mailOnly, const QString& lang)
    {
        static const Trilingual app =
            t("ავთენტიფიკატორი", "authenticator app", "приложение-аутентификатор");
        static const Trilingual none =
            t("მეორე ფაქტორი ჯერ არ არის დამატებული", "second factor still to add",
              "второй фактор ещё не добавлен");
        static const Trilingual mail = t("მხოლოდ ფოსტა", "mail only", "только почта");
        if (authenticator)
            return app.in(lang);
        return (mailOnly ? mail : none).in(lang);
    }

    Store& m_store;
    SeekerAccounts m_seekers;
    Tickets m_tickets;
};

} // namespace

void install(Router& router, Context& context)
{
    auto h = std::make_shared<Handlers>(context);
    router.add("GET", QStringLiteral("/api/candidate/oauth"),
               [h](const Request& r) { return h->accounts(r); });
    router.add("GET", QStringLiteral("/api/candidate/oauth/pick"),
               [h](const Request& r) { return h->pick(r); });
}

} // namespace vl::OAuthRoutes
