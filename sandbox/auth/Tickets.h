#pragma once

#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;

// Proof that a job seeker passed the first factor (a mailed code or the OAuth page). It opens
// no session by itself; a second-factor step turns it into one, and then it is used up.
class Tickets {
public:
    static constexpr qint64 lifetime = 600;
    // Wrong second-factor codes a ticket takes before it refuses further tries.
    static constexpr int maxFailures = 5;

    struct Ticket {
        qint64 seeker = 0;
        // The authenticator secret shown during enrolment, until a code confirms it.
        QString pendingSecret;
        int failures = 0;
    };

    Tickets(Store& store, const Clock& clock);

    QString issue(qint64 seeker);
    // The unexpired ticket, or nothing.
    std::optional<Ticket> find(const QString& ticket) const;
    void setPendingSecret(const QString& ticket, const QString& secret);
    void noteFailure(const QString& ticket);
    void consume(const QString& ticket);

private:
    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
