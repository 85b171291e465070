#include "sandbox/auth/RateLimit.h"

#include "sandbox/Clock.h"
#include "sandbox/Store.h"

namespace vl {

RateLimit::RateLimit(Store& store, const Clock& clock, QString scope, int limit, qint64 window)
    : m_store(store)
    , m_clock(clock)
    , m_scope(std::move(scope))
    , m_limit(limit)
    , m_window(window) {}

bool RateLimit::open(const QString& subject) const {
    const qint64 since = m_clock.now() - m_window;
    const int count = m_store
                          .scalar(QStringLiteral("SELECT COUNT(*) FROM attempts "
                                                 "WHERE scope = ? AND subject = ? AND at > ?"),
                                  {m_scope, subject, since})
                          .toInt();
    return count < m_limit;
}

bool RateLimit::allow(const QString& subject) {
    if (!open(subject))
        return false;
    note(subject);
    return true;
}

void RateLimit::note(const QString& subject) {
    m_store.exec(QStringLiteral("INSERT INTO attempts(scope, subject, at) VALUES(?, ?, ?)"),
                 {m_scope, subject, m_clock.now()});
}

void RateLimit::reset(const QString& subject) {
    m_store.exec(QStringLiteral("DELETE FROM attempts WHERE scope = ? AND subject = ?"),
                 {m_scope, subject});
}

} // namespace vl
