#include "app/platform/TimerScheduler.h"

#include <QPointer>
#include <QTimer>

namespace vl {

namespace {

class TimerPending final : public Scheduler::Pending {
public:
    explicit TimerPending(QTimer* timer)
        : m_timer(timer)
    {
    }
    // The handle may be dropped from inside the timer's own call, so the timer goes later.
    ~TimerPending() override
    {
        if (m_timer) {
            m_timer->stop();
            m_timer->deleteLater();
        }
    }

private:
    QPointer<QTimer> m_timer;
};

} // namespace

Scheduler::Handle TimerScheduler::after(int ms, QObject* context, std::function<void()> callback)
{
    auto* timer = new QTimer(context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, context, [timer, callback = std::move(callback)] {
        timer->deleteLater();
        callback();
    });
    timer->start(ms);
    return std::make_unique<TimerPending>(timer);
}

} // namespace vl
