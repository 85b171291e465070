#include "sandbox/applying/Applications.h"

#include "sandbox/Clock.h"
#include "sandbox/Locale.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"

#include <QJsonArray>
#include <QSqlQuery>

namespace vl {

namespace {

QJsonObject messageJson(const QSqlQuery& row)
{
    return {{QStringLiteral("id"), row.value(0).toString()},
            {QStringLiteral("sender"), row.value(1).toString()},
            {QStringLiteral("body"), row.value(2).toString()},
            {QStringLiteral("createdAt"), Clock::iso(row.value(3).toLongLong())}};
}

} // namespace

Applications::Applications(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

std::optional<Applications::Listing> Applications::listing(const QString& ref,
                                                           const QString& lang) const
{
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT l.ref, COALESCE(t.title, o.title), COALESCE(e.name_%1, e.name), "
                       "l.employer_id, l.apply_on_web, COALESCE(l.form, ''), "
                       "COALESCE(t.title, o.title) || ' ' || COALESCE(t.description, "
                       "o.description) FROM listings l JOIN employers e ON e.id = l.employer_id "
                       "JOIN listing_texts o ON o.ref = l.ref AND o.lang = l.lang "
                       "LEFT JOIN listing_texts t ON t.ref = l.ref AND t.lang = ? "
                       "WHERE l.ref = ?")
            .arg(normalizeLocale(lang)),
        {normalizeLocale(lang), ref.toUpper()});
    if (!row.next())
        return std::nullopt;
    return Listing{row.value(0).toString(),   row.value(1).toString(), row.value(2).toString(),
                   row.value(3).toLongLong(), row.value(4).toBool(),   row.value(5).toString(),
                   row.value(6).toString()};
}

Applications::Sent Applications::insert(const New& a)
{
    const QString ref = QStringLiteral("A-") + Secrets::token(4).toUpper();
    const QString token = Secrets::token(16);
    const qint64 at = a.at.value_or(m_clock.now());
    m_store.exec(
        QStringLiteral("INSERT INTO applications(ref, token, seeker_id, email, listing_ref, kind, "
                       "name, phone, message, pool, answers, status, cv_name, cv_mime, cv_data, "
                       "cv_updated_at, gold, created_at, last_at) "
                       "VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {ref, token, a.seeker ? QVariant(*a.seeker) : QVariant(), a.email, a.listingRef, a.kind,
         a.name, a.phone, a.message, a.pool, a.answers, a.status,
         a.cvName.isEmpty() ? QVariant() : QVariant(a.cvName),
         a.cvName.isEmpty() ? QVariant() : QVariant(a.cvMime),
         a.cvName.isEmpty() ? QVariant() : QVariant(a.cvData), QVariant(), a.gold, at, at});
    return {ref, token};
}

bool Applications::sentSince(const QString& email, const QString& listingRef, qint64 since) const
{
    return m_store
               .scalar(
                   QStringLiteral("SELECT COUNT(*) FROM applications WHERE email = ? AND "
                                  "listing_ref = ? AND kind = 'application' AND created_at > ?"),
                   {email, listingRef, since})
               .toInt() > 0;
}

int Applications::countSince(const QString& email, qint64 since) const
{
    return m_store
        .scalar(
            QStringLiteral("SELECT COUNT(*) FROM applications WHERE email = ? AND created_at > ?"),
            {email, since})
        .toInt();
}

std::optional<qint64> Applications::open(const QString& ref, const QString& key,
                                         std::optional<qint64> seeker) const
{
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT id, token, seeker_id FROM applications WHERE ref = ?"), {ref});
    if (!row.next())
        return std::nullopt;
    const bool byKey = !key.isEmpty() && key == row.value(1).toString();
    const bool bySession = seeker && !row.value(2).isNull() && row.value(2).toLongLong() == *seeker;
    if (!byKey && !bySession)
        return std::nullopt;
    return row.value(0).toLongLong();
}

QJsonObject Applications::cv(qint64 id) const
{
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT cv_name, cv_updated_at, cv_left, status, kind FROM applications "
                       "WHERE id = ?"),
        {id});
    if (!row.next() || row.value(0).isNull())
        return {};
    const int left = row.value(2).toInt();
    const QString status = row.value(3).toString();
    QJsonObject out{{QStringLiteral("name"), row.value(0).toString()},
                    {QStringLiteral("canUpdate"), false},
                    {QStringLiteral("left"), left},
                    {QStringLiteral("max"), cvUpdates}};
    if (!row.value(1).isNull())
        out.insert(QStringLiteral("updatedAt"), Clock::iso(row.value(1).toLongLong()));
    if (status == QLatin1String("withdrawn") || status == QLatin1String("hired") ||
        status == QLatin1String("archived"))
        out.insert(QStringLiteral("blocked"), status);
    else if (left <= 0)
        out.insert(QStringLiteral("blocked"), QStringLiteral("limit"));
    else
        out.insert(QStringLiteral("canUpdate"), true);
    return out;
}

QJsonObject Applications::conversation(qint64 id) const
{
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT a.ref, a.kind, a.status, a.name, a.email, a.message, a.created_at, "
                       "COALESCE(t.title, ''), l.kind, a.listing_ref, COALESCE(e.name, '') "
                       "FROM applications a LEFT JOIN listings l ON l.ref = a.listing_ref "
                       "LEFT JOIN listing_texts t ON t.ref = l.ref AND t.lang = l.lang "
                       "LEFT JOIN employers e ON e.id = l.employer_id WHERE a.id = ?"),
        {id});
    if (!row.next())
        return {};
    const QString status = row.value(2).toString();
    QJsonObject application{{QStringLiteral("id"), QString::number(id)},
                            {QStringLiteral("ref"), row.value(0).toString()},
                            {QStringLiteral("kind"), row.value(1).toString()},
                            {QStringLiteral("status"), status},
                            {QStringLiteral("name"), row.value(3).toString()},
                            {QStringLiteral("email"), row.value(4).toString()},
                            {QStringLiteral("message"), row.value(5).toString()},
                            {QStringLiteral("createdAt"), Clock::iso(row.value(6).toLongLong())},
                            {QStringLiteral("jobTitle"), row.value(7).toString()},
                            {QStringLiteral("jobKind"), row.value(8).toString()},
                            {QStringLiteral("jobRef"), row.value(9).toString()},
                            {QStringLiteral("employerName"), row.value(10).toString()},
                            {QStringLiteral("open"), status != QLatin1String("withdrawn")}};
    const QJsonObject cvNow = cv(id);
    if (!cvNow.isEmpty())
        application.insert(QStringLiteral("cv"), cvNow);
    QJsonArray messages;
    QSqlQuery rows = m_store.exec(QStringLiteral("SELECT id, sender, body, created_at FROM "
                                                 "app_messages WHERE application_id = ? ORDER BY "
                                                 "created_at, id"),
                                  {id});
    while (rows.next())
        messages.append(messageJson(rows));
    return {{QStringLiteral("application"), application},
            {QStringLiteral("messages"), messages},
            {QStringLiteral("calls"), QJsonArray()},
            {QStringLiteral("callsOff"), false},
            {QStringLiteral("canCall"), false}};
}

QString Applications::status(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT status FROM applications WHERE id = ?"), {id})
        .toString();
}

void Applications::setStatus(qint64 id, const QString& status)
{
    m_store.exec(QStringLiteral("UPDATE applications SET status = ?, last_at = ? WHERE id = ?"),
                 {status, m_clock.now(), id});
}

QByteArray Applications::cvData(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT cv_data FROM applications WHERE id = ?"), {id})
        .toByteArray();
}

QString Applications::cvName(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT cv_name FROM applications WHERE id = ?"), {id})
        .toString();
}

int Applications::cvLeft(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT cv_left FROM applications WHERE id = ?"), {id})
        .toInt();
}

QJsonObject Applications::replaceCv(qint64 id, const QString& name, const QString& mime,
                                    const QByteArray& data, const QString& note)
{
    m_store.exec(QStringLiteral("UPDATE applications SET cv_name = ?, cv_mime = ?, cv_data = ?, "
                                "cv_updated_at = ?, cv_left = cv_left - 1 WHERE id = ?"),
                 {name, mime, data, m_clock.now(), id});
    QString body = QStringLiteral("The CV was updated: ") + name;
    if (!note.isEmpty())
        body += QStringLiteral("\n") + note;
    return addMessage(id, QStringLiteral("candidate"), body);
}

QJsonObject Applications::addMessage(qint64 id, const QString& sender, const QString& body,
                                     std::optional<qint64> at)
{
    const qint64 when = at.value_or(m_clock.now());
    const QVariant messageId =
        m_store
            .exec(QStringLiteral("INSERT INTO app_messages(application_id, sender, body, "
                                 "created_at) VALUES(?, ?, ?, ?)"),
                  {id, sender, body, when})
            .lastInsertId();
    m_store.exec(QStringLiteral("UPDATE applications SET last_at = MAX(last_at, ?) WHERE id = ?"),
                 {when, id});
    return {{QStringLiteral("id"), messageId.toString()},
            {QStringLiteral("sender"), sender},
            {QStringLiteral("body"), body},
            {QStringLiteral("createdAt"), Clock::iso(when)}};
}

QJsonArray Applications::activity(qint64 seeker) const
{
    QSqlQuery rows = m_store.exec(
        QStringLiteral(
            "SELECT a.ref, a.kind, a.status, a.created_at, a.last_at, COALESCE(t.title, ''), "
            "COALESCE(e.name, ''), (SELECT body FROM app_messages m WHERE m.application_id = a.id "
            "ORDER BY created_at DESC, id DESC LIMIT 1), (SELECT COUNT(*) FROM app_messages m "
            "WHERE m.application_id = a.id AND m.sender = 'employer') "
            "FROM applications a LEFT JOIN listings l ON l.ref = a.listing_ref "
            "LEFT JOIN listing_texts t ON t.ref = l.ref AND t.lang = l.lang "
            "LEFT JOIN employers e ON e.id = l.employer_id WHERE a.seeker_id = ? "
            "ORDER BY a.last_at DESC, a.id DESC"),
        {seeker});
    QJsonArray out;
    while (rows.next()) {
        out.append(
            QJsonObject{{QStringLiteral("ref"), rows.value(0).toString()},
                        {QStringLiteral("kind"), rows.value(1).toString()},
                        {QStringLiteral("status"), rows.value(2).toString()},
                        {QStringLiteral("createdAt"), Clock::iso(rows.value(3).toLongLong())},
                        {QStringLiteral("lastAt"), Clock::iso(rows.value(4).toLongLong())},
                        {QStringLiteral("unread"), rows.value(8).toInt()},
                        {QStringLiteral("preview"), rows.value(7).toString()},
                        {QStringLiteral("jobTitle"), rows.value(5).toString()},
                        {QStringLiteral("employerName"), rows.value(6).toString()}});
    }
    return out;
}

} // namespace vl
