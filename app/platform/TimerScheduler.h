#pragma once

#include "app/platform/Scheduler.h"

namespace vl {

// The scheduler of a running client: a single-shot QTimer owned by the context.
class TimerScheduler final : public Scheduler {
public:
    Handle after(int ms, QObject* context, std::function<void()> callback) override;
};

} // namespace vl
