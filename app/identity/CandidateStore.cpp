#include "app/identity/CandidateStore.h"

#include <QPointer>
#include <algorithm>

namespace vl {

CandidateStore::CandidateStore(SecretStore& secrets, PendingWrites& pending, QObject* parent)
    : QObject(parent)
    , m_list(secrets, pending, QStringLiteral("candidate-apps"))
{
}

QCoro::Task<> CandidateStore::open()
{
    QPointer self(this);
    co_await m_list.open();
    if (self)
        Q_EMIT changed();
}

std::optional<CandidateEntry> CandidateStore::entry(const QString& ref) const
{
    const auto& all = m_list.entries();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& entry) { return entry.ref == ref; });
    if (found == all.end())
        return std::nullopt;
    return *found;
}

QCoro::Task<> CandidateStore::add(CandidateEntry entry)
{
    auto saved = m_list.add(std::move(entry));
    Q_EMIT changed();
    co_await std::move(saved);
}

QCoro::Task<> CandidateStore::remove(QString ref)
{
    auto saved = m_list.removeIf([&ref](const CandidateEntry& entry) { return entry.ref == ref; });
    Q_EMIT changed();
    co_await std::move(saved);
}

} // namespace vl
