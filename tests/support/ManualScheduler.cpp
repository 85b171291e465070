#include "tests/support/ManualScheduler.h"

#include <algorithm>

namespace vl::test {

namespace {

class ManualPending final : public Scheduler::Pending {
public:
    explicit ManualPending(std::weak_ptr<bool> cancelled)
        : m_cancelled(std::move(cancelled))
    {
    }
    ~ManualPending() override
    {
        if (auto flag = m_cancelled.lock())
            *flag = true;
    }

private:
    std::weak_ptr<bool> m_cancelled;
};

} // namespace

Scheduler::Handle ManualScheduler::after(int ms, QObject* context, std::function<void()> callback)
{
    auto entry = std::make_shared<Entry>(Entry{m_now + ms, context, std::move(callback), false});
    m_entries.push_back(entry);
    return std::make_unique<ManualPending>(std::shared_ptr<bool>(entry, &entry->cancelled));
}

void ManualScheduler::advance(int ms)
{
    const qint64 until = m_now + ms;
    for (;;) {
        std::erase_if(m_entries, [](const auto& e) { return e->cancelled || !e->context; });
        const auto next =
            std::min_element(m_entries.begin(), m_entries.end(),
                             [](const auto& a, const auto& b) { return a->due < b->due; });
        if (next == m_entries.end() || (*next)->due > until)
            break;
        const std::shared_ptr<Entry> entry = *next;
        m_entries.erase(next);
        m_now = entry->due;
        entry->callback();
    }
    m_now = until;
}

int ManualScheduler::waiting() const
{
    return int(std::count_if(m_entries.begin(), m_entries.end(),
                             [](const auto& e) { return !e->cancelled && e->context; }));
}

} // namespace vl::test
