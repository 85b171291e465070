#pragma once

#include "app/identity/SecretList.h"
#include "core/identity/StoredEntries.h"

#include <QObject>
#include <optional>

namespace vl {

// The applications and questions sent from this computer, in the secure store under
// "candidate-apps". Entries outlive any sign-out: their keys work without a session.
class CandidateStore : public QObject {
    Q_OBJECT
public:
    CandidateStore(SecretStore& secrets, PendingWrites& pending, QObject* parent = nullptr);

    QCoro::Task<> open();
    const std::vector<CandidateEntry>& entries() const { return m_list.entries(); }
    std::optional<CandidateEntry> entry(const QString& ref) const;
    // The caller checks `entry(ref)` first, so that nothing doubles.
    QCoro::Task<> add(CandidateEntry entry);
    // The service no longer knows this application: its entry goes.
    QCoro::Task<> remove(QString ref);

Q_SIGNALS:
    void changed();

private:
    SecretList<CandidateEntry> m_list;
};

} // namespace vl
