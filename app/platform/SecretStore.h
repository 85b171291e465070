#pragma once

#include <QCoroTask>
#include <QString>
#include <optional>

namespace vl {

class Preferences;

// A small store of secrets under string keys. Every failure is silent: a read that fails is no
// value, a write that fails leaves nothing behind.
class SecretStore {
public:
    explicit SecretStore(Preferences& preferences)
        : m_preferences(preferences)
    {
    }
    virtual ~SecretStore() = default;

    virtual QCoro::Task<std::optional<QString>> get(QString key) = 0;
    virtual QCoro::Task<> set(QString value, QString key) = 0;
    virtual QCoro::Task<> remove(QString key) = 0;

    // For data that must survive where the secure store does not work: written to the secure
    // store, read back, and only when the read-back differs kept in plain under vl.soft.<key>.
    QCoro::Task<> softSet(QString value, QString key);
    QCoro::Task<std::optional<QString>> softGet(QString key);

private:
    Preferences& m_preferences;
};

} // namespace vl
