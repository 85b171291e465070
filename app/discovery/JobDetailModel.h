#pragma once

#include "core/discovery/JobDetail.h"
#include "core/discovery/JobDetailRules.h"
#include "core/l10n/Lang.h"

#include <QCoroTask>
#include <QObject>
#include <optional>

namespace vl {

class APIClient;
class Router;

// The listing open in the detail pane. The newest load alone may fill it; what it loads is
// also the router's `readingJob`, which the Listing menu reads.
class JobDetailModel : public QObject {
    Q_OBJECT
public:
    JobDetailModel(const APIClient& api, Router& router, QObject* parent = nullptr);

    const std::optional<QString>& ref() const { return m_ref; }
    const std::optional<JobDetail>& detail() const { return m_detail; }
    bool loading() const { return m_loading; }
    bool failed() const { return m_failed; }

    JobDetailRules::Action action() const;

    QCoro::Task<> load(std::optional<QString> ref, Lang lang);

Q_SIGNALS:
    void changed();

private:
    const APIClient& m_api;
    Router& m_router;
    std::optional<QString> m_ref;
    std::optional<JobDetail> m_detail;
    bool m_loading = false;
    bool m_failed = false;
    int m_generation = 0;
};

} // namespace vl
