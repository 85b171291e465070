#pragma once

#include "app/platform/Scheduler.h"

#include <QPointer>
#include <memory>
#include <vector>

namespace vl::test {

// A scheduler whose clock moves only when the test advances it.
class ManualScheduler final : public Scheduler {
public:
    Handle after(int ms, QObject* context, std::function<void()> callback) override;

    // Moves the clock on, running every call that falls due, in due order.
    void advance(int ms);
    // Calls still waiting.
    int waiting() const;
    qint64 now() const { return m_now; }

private:
    struct Entry {
        qint64 due = 0;
        QPointer<QObject> context;
        std::function<void()> callback;
        bool cancelled = false;
    };
    qint64 m_now = 0;
    std::vector<std::shared_ptr<Entry>> m_entries;
};

} // namespace vl::test
