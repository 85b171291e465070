#include "app/applying/MyApplicationsModel.h"

#include "app/identity/CandidateAuth.h"
#include "app/identity/CandidateStore.h"
#include "app/shell/AppState.h"

#include <QPointer>

namespace vl {

MyApplicationsModel::MyApplicationsModel(ApplyServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
{
    connect(&m_services.store, &CandidateStore::changed, this, &MyApplicationsModel::merge);
}

void MyApplicationsModel::merge()
{
    m_rows = mergeApplications(m_services.store.entries(), m_serverApps);
    Q_EMIT changed();
}

QCoro::Task<> MyApplicationsModel::load()
{
    QPointer self(this);
    m_loading = true;
    m_error.reset();
    co_await m_services.store.open();
    if (!self)
        co_return;
    if (m_services.auth.signedIn()) {
        const auto read = co_await m_services.api.myActivity(this);
        if (!self)
            co_return;
        if (read)
            m_serverApps = read->applications;
        else
            m_error = read.error().message(m_services.state.lang());
    }
    m_loading = false;
    merge();
}

} // namespace vl
