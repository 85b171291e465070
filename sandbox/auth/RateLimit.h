#pragma once

#include <QString>

namespace vl {

class Clock;
class Store;

// Counts attempts per scope and subject (an address, a ticket) in a sliding window.
class RateLimit {
public:
    RateLimit(Store& store, const Clock& clock, QString scope, int limit, qint64 window);

    // Records one attempt and says whether it is within the limit. A refused attempt is not
    // recorded, so the window reopens as the old ones age out.
    bool allow(const QString& subject);
    // Records an attempt without asking, e.g. a failure that counts towards a lock.
    void note(const QString& subject);
    // Whether one more attempt would still be allowed, without recording one.
    bool open(const QString& subject) const;
    void reset(const QString& subject);

private:
    Store& m_store;
    const Clock& m_clock;
    QString m_scope;
    int m_limit;
    qint64 m_window;
};

} // namespace vl
