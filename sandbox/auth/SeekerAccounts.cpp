#include "sandbox/auth/SeekerAccounts.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"

#include <QRandomGenerator>
#include <QSqlQuery>

namespace vl {

namespace {

// Letters and digits that cannot be mistaken for one another when copied by hand.
constexpr char readable[] = "ABCDEFGHJKLMNPQRSTUVWXYZ23456789";

QString recoveryCode()
{
    QString out;
    for (int i = 0; i < 8; ++i) {
        if (i == 4)
            out.append(u'-');
        out.append(QLatin1Char(readable[QRandomGenerator::system()->bounded(32)]));
    }
    return out;
}

} // namespace

SeekerAccounts::SeekerAccounts(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

std::optional<qint64> SeekerAccounts::byEmail(const QString& email) const
{
    const QVariant id =
        m_store.scalar(QStringLiteral("SELECT id FROM seekers WHERE email = ?"), {email});
    return id.isValid() ? std::optional(id.toLongLong()) : std::nullopt;
}

qint64 SeekerAccounts::create(const QString& email)
{
    return m_store
        .exec(QStringLiteral("INSERT INTO seekers(email, name, created_at) VALUES(?, ?, ?)"),
              {email, email.section(u'@', 0, 0), m_clock.now()})
        .lastInsertId()
        .toLongLong();
}

qint64 SeekerAccounts::findOrCreate(const QString& email)
{
    const auto existing = byEmail(email);
    return existing ? *existing : create(email);
}

QString SeekerAccounts::emailOf(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT email FROM seekers WHERE id = ?"), {id})
        .toString();
}

QString SeekerAccounts::secretOf(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT totp_secret FROM seekers WHERE id = ?"), {id})
        .toString();
}

bool SeekerAccounts::mailOnly(qint64 id) const
{
    return m_store.scalar(QStringLiteral("SELECT mail_only FROM seekers WHERE id = ?"), {id})
        .toBool();
}

QStringList SeekerAccounts::enroll(qint64 id, const QString& secret)
{
    m_store.exec(QStringLiteral("UPDATE seekers SET totp_secret = ? WHERE id = ?"), {secret, id});
    m_store.exec(QStringLiteral("DELETE FROM recovery_codes WHERE seeker_id = ?"), {id});
    QStringList codes;
    for (int i = 0; i < recoveryCount; ++i)
        codes.append(recoveryCode());
    addRecoveryCodes(id, codes);
    return codes;
}

void SeekerAccounts::addRecoveryCodes(qint64 id, const QStringList& codes)
{
    QSqlQuery insert =
        m_store.prepare(QStringLiteral("INSERT INTO recovery_codes(seeker_id, code) VALUES(?, ?)"));
    for (const QString& code : codes)
        Store::run(insert, {id, normalise(code)});
}

bool SeekerAccounts::redeemRecovery(qint64 id, const QString& code)
{
    QSqlQuery used = m_store.exec(
        QStringLiteral("UPDATE recovery_codes SET used_at = ? WHERE seeker_id = ? AND code = ? "
                       "AND used_at IS NULL"),
        {m_clock.now(), id, normalise(code)});
    return used.numRowsAffected() > 0;
}

QString SeekerAccounts::normalise(const QString& code)
{
    QString out;
    for (const QChar c : code) {
        if (c.isLetterOrNumber())
            out.append(c.toUpper());
    }
    return out;
}

} // namespace vl
