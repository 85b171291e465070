#pragma once

#include <QJsonArray>
#include <QList>
#include <QString>

namespace vl {

class Clock;

// The mails the service would have sent. Each is kept for GET /dev/outbox and printed to the
// console, so that a person at the sandbox can sign in.
class Outbox {
public:
    explicit Outbox(const Clock& clock);

    void send(const QString& to, const QString& subject, const QString& body);
    // Newest first.
    QJsonArray toJson() const;

private:
    struct Mail {
        QString to;
        QString subject;
        QString body;
        qint64 at;
    };
    const Clock& m_clock;
    QList<Mail> m_mails;
};

} // namespace vl
