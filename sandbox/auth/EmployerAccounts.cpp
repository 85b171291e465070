#include "sandbox/auth/EmployerAccounts.h"

#include "sandbox/Clock.h"
#include "sandbox/Locale.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"

#include <QSqlQuery>

namespace vl {

namespace {

QString priceText(const QString& locale) {
    static const Trilingual price{QStringLiteral("49 ₾ / თვე"),
                                  QStringLiteral("₾49 a month"),
                                  QStringLiteral("49 ₾ в месяц")};
    return price.in(normalizeLocale(locale));
}

} // namespace

EmployerAccounts::EmployerAccounts(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock) {}

std::optional<qint64> EmployerAccounts::byToken(const QString& token) const {
    if (token.isEmpty())
        return std::nullopt;
    const QVariant id = m_store.scalar(
        QStringLiteral("SELECT employer_id FROM employer_tokens WHERE token = ?"), {token});
    return id.isValid() ? std::optional(id.toLongLong()) : std::nullopt;
}

std::optional<qint64> EmployerAccounts::byEmail(const QString& email) const {
    const QVariant id =
        m_store.scalar(QStringLiteral("SELECT id FROM employers WHERE email = ?"), {email});
    return id.isValid() ? std::optional(id.toLongLong()) : std::nullopt;
}

QString EmployerAccounts::emailOf(qint64 id) const {
    return m_store.scalar(QStringLiteral("SELECT email FROM employers WHERE id = ?"), {id})
        .toString();
}

qint64 EmployerAccounts::create(const QString& email, const QString& locale) {
    const QString name = email.section(u'@', 0, 0);
    QSqlQuery insert = m_store.exec(
        QStringLiteral("INSERT INTO employers(email, name, locale, next_key, next_urgent, "
                       "created_at) VALUES(?, ?, ?, 'post', 1, ?)"),
        {email, name, normalizeLocale(locale), m_clock.now()});
    return insert.lastInsertId().toLongLong();
}

void EmployerAccounts::setLocale(qint64 id, const QString& locale) {
    m_store.exec(QStringLiteral("UPDATE employers SET locale = ? WHERE id = ?"),
                 {normalizeLocale(locale), id});
}

void EmployerAccounts::update(qint64 id, const QString& name, const QString& website,
                              const QString& phone) {
    m_store.exec(QStringLiteral("UPDATE employers SET name = ?, name_ka = NULL, name_en = NULL, "
                                "name_ru = NULL, website = ?, phone = ? WHERE id = ?"),
                 {name, website, phone, id});
}

void EmployerAccounts::remove(qint64 id) {
    m_store.exec(QStringLiteral("UPDATE listings SET status = 'closed' WHERE employer_id = ?"),
                 {id});
    m_store.exec(QStringLiteral("DELETE FROM employer_tokens WHERE employer_id = ?"), {id});
    m_store.exec(QStringLiteral("UPDATE employers SET email = NULL, pro_until = NULL, "
                                "next_key = NULL WHERE id = ?"),
                 {id});
}

QString EmployerAccounts::issueToken(qint64 id) {
    const QString token = Secrets::token();
    m_store.exec(QStringLiteral(
                     "INSERT INTO employer_tokens(token, employer_id, created_at) VALUES(?, ?, ?)"),
                 {token, id, m_clock.now()});
    return token;
}

void EmployerAccounts::revoke(const QString& token) {
    m_store.exec(QStringLiteral("DELETE FROM employer_tokens WHERE token = ?"), {token});
}

QJsonObject EmployerAccounts::profile(qint64 id) const {
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT name, email, locale, website, phone, logo_url FROM employers "
                       "WHERE id = ?"),
        {id});
    if (!row.next())
        return {};
    QJsonObject out{{QStringLiteral("name"), row.value(0).toString()},
                    {QStringLiteral("email"), row.value(1).toString()},
                    {QStringLiteral("locale"), row.value(2).toString()},
                    {QStringLiteral("website"), row.value(3).toString()},
                    {QStringLiteral("phone"), row.value(4).toString()}};
    if (!row.value(5).isNull())
        out.insert(QStringLiteral("logoUrl"), row.value(5).toString());
    return out;
}

QJsonObject EmployerAccounts::me(qint64 id, const QString& origin) const {
    QSqlQuery row = m_store.exec(
        QStringLiteral(
            "SELECT e.unread, e.applications, e.new_applications, e.has_mfa, e.pro_paid, "
            "e.pro_until, e.pro_source, e.pro_cancelling, e.pro_bumps, e.next_key, "
            "e.next_urgent, e.locale, "
            "(SELECT COUNT(*) FROM listings l WHERE l.employer_id = e.id), "
            "(SELECT COUNT(*) FROM listings l WHERE l.employer_id = e.id AND l.status = 'live'), "
            "(SELECT COUNT(*) FROM listings l WHERE l.employer_id = e.id "
            "AND l.status = 'pending') "
            "FROM employers e WHERE e.id = ?"),
        {id});
    if (!row.next())
        return {};
    QJsonObject out{{QStringLiteral("employer"), profile(id)},
                    {QStringLiteral("unread"), row.value(0).toInt()},
                    {QStringLiteral("listings"), row.value(12).toInt()},
                    {QStringLiteral("liveListings"), row.value(13).toInt()},
                    {QStringLiteral("pendingListings"), row.value(14).toInt()},
                    {QStringLiteral("applications"), row.value(1).toInt()},
                    {QStringLiteral("newApplications"), row.value(2).toInt()},
                    {QStringLiteral("hasMfa"), row.value(3).toBool()}};
    if (!row.value(5).isNull()) {
        const qint64 until = row.value(5).toLongLong();
        out.insert(
            QStringLiteral("pro"),
            QJsonObject{{QStringLiteral("on"), until > m_clock.now()},
                        {QStringLiteral("paid"), row.value(4).toBool()},
                        {QStringLiteral("until"), Clock::iso(until)},
                        {QStringLiteral("source"), row.value(6).toString()},
                        {QStringLiteral("cancelling"), row.value(7).toBool()},
                        {QStringLiteral("bumps"), row.value(8).toInt()},
                        {QStringLiteral("manageUrl"), origin + QStringLiteral("/account/pro")},
                        {QStringLiteral("priceText"), priceText(row.value(11).toString())}});
    }
    if (!row.value(9).isNull()) {
        out.insert(QStringLiteral("next"),
                   QJsonObject{{QStringLiteral("key"), row.value(9).toString()},
                               {QStringLiteral("urgent"), row.value(10).toBool()}});
    }
    return out;
}

} // namespace vl
