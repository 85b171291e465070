#include "app/identity/SeekerStore.h"

#include <QPointer>

namespace vl {

SeekerStore::SeekerStore(SecretStore& secrets, PendingWrites& pending, QObject* parent)
    : QObject(parent)
    , m_list(secrets, pending, QStringLiteral("seeker-profiles"))
{
}

QCoro::Task<> SeekerStore::open()
{
    QPointer self(this);
    co_await m_list.open();
    if (self)
        Q_EMIT changed();
}

QCoro::Task<> SeekerStore::add(SeekerProfileEntry entry)
{
    auto saved = m_list.add(std::move(entry));
    Q_EMIT changed();
    co_await std::move(saved);
}

} // namespace vl
