#include "app/applying/CvUpdateSheetModel.h"

#include "app/shell/AppState.h"
#include "core/applying/CvUpdateRules.h"
#include "core/l10n/L10n.h"

#include <QFile>
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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    auto picked = CvPick::accept(path, file.readAll());
    if (const auto* refusal = std::get_if<L10n::Key>(&picked)) {
        m_error = L10n::text(*refusal, m_services.state.lang());
        Q_EMIT changed();
        return false;
    }
    m_error.reset();
    m_file = std::get<CvFile>(std::move(picked));
    Q_EMIT changed();
    return true;
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
