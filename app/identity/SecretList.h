#pragma once

#include "app/platform/PendingWrites.h"
#include "app/platform/SecretStore.h"
#include "core/json/Json.h"

#include <QCoroTask>
#include <vector>

namespace vl {

// A list of records kept as one JSON array in the secure store, newest first. No item, or one
// that does not read, is an empty list; the next save replaces it. A failed save is not
// reported: the list in memory stays the truth until the next start.
template <class Entry>
class SecretList {
public:
    SecretList(SecretStore& secrets, PendingWrites& pending, QString account)
        : m_secrets(secrets)
        , m_pending(pending)
        , m_account(std::move(account))
    {
    }

    const std::vector<Entry>& entries() const { return m_entries; }
    bool opened() const { return m_opened; }

    // Drops the entries the test picks and saves what is left.
    template <class Pick>
    QCoro::Task<> removeIf(Pick pick)
    {
        std::erase_if(m_entries, pick);
        co_await m_secrets.set(QString::fromUtf8(json::encode(m_entries)), m_account);
    }

    QCoro::Task<> open()
    {
        if (m_opened)
            co_return;
        const auto kept = co_await m_secrets.get(m_account);
        if (m_opened)
            co_return;
        m_opened = true;
        if (!kept)
            co_return;
        auto read = json::decode<std::vector<Entry>>(kept->toUtf8());
        // What was added before the store answered stays at the head.
        if (read)
            m_entries.insert(m_entries.end(), read->begin(), read->end());
    }

    // The entry is in the list at once. The store's list is read in first when nobody opened
    // it yet, since the write below replaces the whole item.
    QCoro::Task<> add(Entry entry)
    {
        m_entries.insert(m_entries.begin(), std::move(entry));
        co_await m_pending.guard(save());
    }

private:
    QCoro::Task<> save()
    {
        co_await open();
        co_await m_secrets.set(QString::fromUtf8(json::encode(m_entries)), m_account);
    }

    SecretStore& m_secrets;
    PendingWrites& m_pending;
    QString m_account;
    std::vector<Entry> m_entries;
    bool m_opened = false;
};

} // namespace vl
