#include "tests/support/Fakes.h"

namespace vl::test {

QCoro::Task<std::optional<QString>> MemorySecretStore::get(QString key)
{
    calls << QStringLiteral("get ") + key;
    if (!items.contains(key))
        co_return std::nullopt;
    co_return items.value(key);
}

QCoro::Task<> MemorySecretStore::set(QString value, QString key)
{
    calls << QStringLiteral("set ") + key;
    if (mode == Mode::working)
        items.insert(key, value);
    co_return;
}

QCoro::Task<> MemorySecretStore::remove(QString key)
{
    calls << QStringLiteral("delete ") + key;
    items.remove(key);
    co_return;
}

} // namespace vl::test
