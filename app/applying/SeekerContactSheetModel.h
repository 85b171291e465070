#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/SeekerRecords.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

// An employer writing to the author of a seeker profile.
class SeekerContactSheetModel : public QObject {
    Q_OBJECT
public:
    SeekerContactSheetModel(ApplyServices services, SeekerDetail seeker, QObject* parent = nullptr);

    QString message;

    const SeekerDetail& seeker() const { return m_seeker; }
    // No employer is signed in: the sheet offers the sign-in instead.
    bool needsSignIn() const;
    bool showSignIn() const { return m_showSignIn; }
    void askSignIn();
    const std::optional<QString>& error() const { return m_error; }
    bool working() const { return m_working; }
    bool sent() const { return m_sent; }
    const std::optional<QString>& threadId() const { return m_threadId; }

    QCoro::Task<> send();

Q_SIGNALS:
    void changed();

private:
    ApplyServices m_services;
    SeekerDetail m_seeker;
    std::optional<QString> m_error;
    std::optional<QString> m_threadId;
    bool m_showSignIn = false;
    bool m_working = false;
    bool m_sent = false;
};

} // namespace vl
