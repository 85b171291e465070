#include "app/discovery/JobDetailModel.h"

#include "app/service/APIClient.h"
#include "app/shell/Router.h"

#include <QPointer>

namespace vl {

JobDetailModel::JobDetailModel(const APIClient& api, Router& router, QObject* parent)
    : QObject(parent)
    , m_api(api)
    , m_router(router)
{
}

JobDetailRules::Action JobDetailModel::action() const
{
    return m_detail ? JobDetailRules::action(*m_detail) : JobDetailRules::Action::none;
}

QCoro::Task<> JobDetailModel::load(std::optional<QString> ref, Lang lang)
{
    const int mine = ++m_generation;
    m_ref = ref;
    m_detail.reset();
    m_failed = false;
    m_loading = ref.has_value();
    m_router.setReadingJob(std::nullopt);
    Q_EMIT changed();
    if (!ref)
        co_return;

    QPointer<JobDetailModel> self(this);
    auto result = co_await m_api.jobDetail(*ref, lang, this);
    if (!self || mine != m_generation)
        co_return;
    m_loading = false;
    if (result) {
        m_detail = std::move(result).value();
        m_router.setReadingJob(m_detail);
    } else {
        m_failed = true;
    }
    Q_EMIT changed();
}

} // namespace vl
