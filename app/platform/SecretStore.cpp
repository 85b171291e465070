#include "app/platform/SecretStore.h"

#include "app/platform/Preferences.h"

namespace vl {

namespace {

QString softKey(const QString& key)
{
    return QStringLiteral("vl.soft.") + key;
}

} // namespace

QCoro::Task<> SecretStore::softSet(QString value, QString key)
{
    co_await set(value, key);
    const std::optional<QString> readBack = co_await get(key);
    if (readBack != value)
        m_preferences.setValue(softKey(key), value);
}

QCoro::Task<std::optional<QString>> SecretStore::softGet(QString key)
{
    if (auto stored = co_await get(key))
        co_return stored;
    const QVariant plain = m_preferences.value(softKey(key));
    if (plain.isValid())
        co_return plain.toString();
    co_return std::nullopt;
}

} // namespace vl
