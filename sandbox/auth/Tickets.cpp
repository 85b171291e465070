#include "sandbox/auth/Tickets.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"
#include "sandbox/auth/Secrets.h"

#include <QSqlQuery>

namespace vl {

Tickets::Tickets(Store& store, const Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

QString Tickets::issue(qint64 seeker)
{
    const QString ticket = Secrets::token(24);
    m_store.exec(
        QStringLiteral("INSERT INTO tickets(ticket, seeker_id, expires_at) VALUES(?, ?, ?)"),
        {ticket, seeker, m_clock.now() + lifetime});
    return ticket;
}

std::optional<Tickets::Ticket> Tickets::find(const QString& ticket) const
{
    if (ticket.isEmpty())
        return std::nullopt;
    QSqlQuery row =
        m_store.exec(QStringLiteral("SELECT seeker_id, pending_secret, failures FROM tickets "
                                    "WHERE ticket = ? AND expires_at > ?"),
                     {ticket, m_clock.now()});
    if (!row.next())
        return std::nullopt;
    return Ticket{row.value(0).toLongLong(), row.value(1).toString(), row.value(2).toInt()};
}

void Tickets::setPendingSecret(const QString& ticket, const QString& secret)
{
    m_store.exec(QStringLiteral("UPDATE tickets SET pending_secret = ? WHERE ticket = ?"),
                 {secret, ticket});
}

void Tickets::noteFailure(const QString& ticket)
{
    m_store.exec(QStringLiteral("UPDATE tickets SET failures = failures + 1 WHERE ticket = ?"),
                 {ticket});
}

void Tickets::consume(const QString& ticket)
{
    m_store.exec(QStringLiteral("DELETE FROM tickets WHERE ticket = ?"), {ticket});
}

} // namespace vl
