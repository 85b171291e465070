#pragma once

#include "app/identity/SecretList.h"
#include "core/identity/StoredEntries.h"

#include <QObject>

namespace vl {

// The seeker profiles posted from this computer, in the secure store under "seeker-profiles".
class SeekerStore : public QObject {
    Q_OBJECT
public:
    SeekerStore(SecretStore& secrets, PendingWrites& pending, QObject* parent = nullptr);

    QCoro::Task<> open();
    const std::vector<SeekerProfileEntry>& entries() const { return m_list.entries(); }
    QCoro::Task<> add(SeekerProfileEntry entry);

Q_SIGNALS:
    void changed();

private:
    SecretList<SeekerProfileEntry> m_list;
};

} // namespace vl
