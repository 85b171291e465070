#pragma once

#include "app/shell/AppContext.h"
#include "tests/support/Fakes.h"
#include "tests/support/ManualScheduler.h"

#include <QCoroTask>
#include <memory>
#include <optional>
#include <type_traits>

namespace vl::test {

// An AppContext for one test: memory preferences and secrets (or the real Secret Service), the
// real network session, pointed at the given site.
struct TestContextOptions {
    QString site;
    QStringList preferredLanguages{QStringLiteral("en-US")};
    qint64 build = 100;
    bool realSecretService = false;
    // Timers wait for the test to advance a ManualScheduler instead of the clock.
    bool manualTime = false;
};

std::unique_ptr<AppContext> makeContext(const TestContextOptions& options);

MemoryPreferences& preferencesOf(AppContext& context);
MemorySecretStore& secretsOf(AppContext& context);
ManualScheduler& manualSchedulerOf(AppContext& context);

// Runs a task to its end on a nested event loop. Results need no default value.
template <class T>
T wait(QCoro::Task<T>&& task)
{
    if constexpr (std::is_void_v<T>) {
        QCoro::waitFor(std::move(task));
    } else {
        std::optional<T> out;
        QCoro::waitFor([](QCoro::Task<T> pending, std::optional<T>& result) -> QCoro::Task<> {
            result.emplace(co_await std::move(pending));
        }(std::move(task), out));
        return std::move(*out);
    }
}

} // namespace vl::test
