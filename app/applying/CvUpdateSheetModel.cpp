#include "app/applying/CvUpdateSheetModel.h"

#include "app/applying/CvChoice.h"
#include "app/shell/AppState.h"
#include "core/applying/CvUpdateRules.h"
#include "core/l10n/L10n.h"

#include <QPointer>

namespace vl {

CvUpdateSheetModel::CvUpdateSheetModel(ApplyServices services, QString ref, QString key,
                                       CandidateCvDTO cv, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_ref(std::move(ref))
    , m_key(std::move(key))
    , m_cv(std::move(cv))
{
}

bool CvUpdateSheetModel::choose(const QString& path)
{
    const CvChoice choice = chooseCv(path, m_services.state.lang(), m_file, m_error);
    if (choice != CvChoice::unreadable)
        Q_EMIT changed();
    return choice == CvChoice::taken;
}

QCoro::Task<> CvUpdateSheetModel::send()
{
    if (m_sending || !m_file)
        co_return;
    QPointer self(this);
    m_sending = true;
    m_error.reset();
    Q_EMIT changed();
    auto result = co_await m_services.api.updateCv(m_ref, m_key, note.trimmed(), *m_file, this);
    if (!self)
        co_return;
    m_sending = false;
    if (result) {
        m_done = std::move(result).value();
        m_cv = m_done->cv;
        Q_EMIT sent(*m_done);
    } else {
        const auto failure =
            CvUpdateRules::failure(result.error(), m_services.state.lang(), m_cv.max);
        m_error = failure.message;
        m_refused = failure.refused;
    }
    Q_EMIT changed();
}

} // namespace vl
