#include "app/platform/PendingWrites.h"

#include <QCoroSignal>
#include <QDeadlineTimer>
#include <QPointer>

namespace vl {

QCoro::Task<> PendingWrites::guard(QCoro::Task<> work)
{
    QPointer self(this);
    ++m_underWay;
    co_await std::move(work);
    if (!self)
        co_return;
    if (--m_underWay == 0)
        Q_EMIT idle();
}

QCoro::Task<bool> PendingWrites::settle(std::chrono::milliseconds bound)
{
    QPointer self(this);
    const QDeadlineTimer deadline(bound);
    // A write may start another (a cookie arriving as one ends), so idle is checked again.
    while (self && m_underWay > 0 && !deadline.hasExpired()) {
        const auto left = std::chrono::milliseconds(deadline.remainingTime());
        co_await qCoro(this, &PendingWrites::idle, left);
    }
    co_return self&& m_underWay == 0;
}

} // namespace vl
