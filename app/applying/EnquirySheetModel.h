#pragma once

#include "app/applying/ApplyServices.h"
#include "core/discovery/JobDetail.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

// A question to the employer of one listing.
class EnquirySheetModel : public QObject {
    Q_OBJECT
public:
    EnquirySheetModel(ApplyServices services, JobDetail job, QObject* parent = nullptr);

    QString name;
    QString phone;
    QString message;

    const JobDetail& job() const { return m_job; }
    std::optional<QString> email() const;
    const std::optional<QString>& error() const { return m_error; }
    bool sending() const { return m_sending; }
    bool sent() const { return m_sent; }
    // The reference the service gave what was sent.
    const QString& sentRef() const { return m_sentRef; }

    QCoro::Task<> send();

Q_SIGNALS:
    void changed();

private:
    ApplyServices m_services;
    JobDetail m_job;
    std::optional<QString> m_error;
    bool m_sending = false;
    bool m_sent = false;
    QString m_sentRef;
};

} // namespace vl
