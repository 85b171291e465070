#include "sandbox/dev/Outbox.h"

#include "sandbox/Clock.h"

#include <QJsonObject>
#include <QTextStream>

namespace vl {

Outbox::Outbox(const Clock& clock)
    : m_clock(clock)
{
}

void Outbox::send(const QString& to, const QString& subject, const QString& body)
{
    m_mails.append({to, subject, body, m_clock.now()});
    QTextStream out(stdout);
    out << "--- mail to " << to << ": " << subject << '\n' << body << "\n---\n";
    out.flush();
}

QJsonArray Outbox::toJson() const
{
    QJsonArray mails;
    for (auto it = m_mails.crbegin(); it != m_mails.crend(); ++it) {
        mails.append(QJsonObject{{QStringLiteral("to"), it->to},
                                 {QStringLiteral("subject"), it->subject},
                                 {QStringLiteral("body"), it->body},
                                 {QStringLiteral("at"), Clock::iso(it->at)}});
    }
    return mails;
}

} // namespace vl
