#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace vl {

// Waits the client's fixed timers. Tests swap in a scheduler driven by hand, so the waits pass
// in virtual time.
class Scheduler {
public:
    // A scheduled call; dropping it cancels the call.
    class Pending {
    public:
        virtual ~Pending() = default;
    };
    using Handle = std::unique_ptr<Pending>;

    virtual ~Scheduler() = default;
    // Calls `callback` once after `ms`, unless `context` is gone by then or the handle was
    // dropped.
    [[nodiscard]] virtual Handle after(int ms, QObject* context,
                                       std::function<void()> callback) = 0;
};

} // namespace vl
