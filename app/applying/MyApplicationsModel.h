#pragma once

#include "app/applying/ApplyServices.h"
#include "core/applying/ApplicationList.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

// My applications: what this computer sent, merged with what the service reports.
class MyApplicationsModel : public QObject {
    Q_OBJECT
public:
    explicit MyApplicationsModel(ApplyServices services, QObject* parent = nullptr);

    const std::vector<ApplicationRow>& rows() const { return m_rows; }
    bool loading() const { return m_loading; }
    // The service's list could not be read; the stored rows still show.
    const std::optional<QString>& error() const { return m_error; }

    // The stored entries at once, then the service's list when a job seeker is signed in.
    QCoro::Task<> load();

Q_SIGNALS:
    void changed();

private:
    void merge();

    ApplyServices m_services;
    std::vector<MyActivityPayload::App> m_serverApps;
    std::vector<ApplicationRow> m_rows;
    std::optional<QString> m_error;
    bool m_loading = false;
};

} // namespace vl
