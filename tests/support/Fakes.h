#pragma once

#include "app/platform/Preferences.h"
#include "app/platform/SecretStore.h"

#include <QHash>
#include <QStringList>

namespace vl::test {

// Preferences kept in memory for one test.
class MemoryPreferences final : public Preferences {
public:
    QVariant value(const QString& key) const override { return m_values.value(key); }
    void setValue(const QString& key, const QVariant& value) override
    {
        m_values.insert(key, value);
    }
    void remove(const QString& key) override { m_values.remove(key); }

private:
    QHash<QString, QVariant> m_values;
};

// A secure store in memory that records what it was asked, and can be made to lose every write
// (a keyring that refuses them) or to fail everything (no Secret Service).
class MemorySecretStore final : public SecretStore {
public:
    using SecretStore::SecretStore;

    enum class Mode { working, refusesWrites };
    Mode mode = Mode::working;
    QHash<QString, QString> items;
    QStringList calls;

    QCoro::Task<std::optional<QString>> get(QString key) override;
    QCoro::Task<> set(QString value, QString key) override;
    QCoro::Task<> remove(QString key) override;
};

} // namespace vl::test
