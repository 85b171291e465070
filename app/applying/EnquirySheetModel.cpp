#include "app/applying/EnquirySheetModel.h"

#include "app/identity/CandidateAuth.h"
#include "app/identity/CandidateStore.h"
#include "app/shell/AppState.h"
#include "core/applying/ApplyRules.h"
#include "core/l10n/L10n.h"

#include <QDateTime>
#include <QPointer>

namespace vl {

EnquirySheetModel::EnquirySheetModel(ApplyServices services, JobDetail job, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_job(std::move(job))
{
}

std::optional<QString> EnquirySheetModel::email() const
{
    return m_services.auth.email();
}

QCoro::Task<> EnquirySheetModel::send()
{
    if (m_sending || m_sent)
        co_return;
    const Lang lang = m_services.state.lang();
    const auto email = m_services.auth.email();
    if (const auto refusal = ApplyRules::validateEnquiry(name, email, message)) {
        if (refusal->message)
            m_error = L10n::text(*refusal->message, lang);
        Q_EMIT changed();
        co_return;
    }
    m_error.reset();
    m_sending = true;
    Q_EMIT changed();
    QPointer self(this);
    const auto result =
        co_await m_services.api.enquiry(name, *email, phone, message, m_job.ref, this);
    if (!self)
        co_return;
    if (result) {
        CandidateStore& store = m_services.store;
        co_await store.open();
        if (!store.entry(result->ref)) {
            CandidateEntry entry{result->ref,
                                 result->token,
                                 m_job.title,
                                 m_job.employerName,
                                 QStringLiteral("enquiry"),
                                 QDateTime::currentDateTimeUtc()};
            co_await store.add(std::move(entry));
        }
        if (!self)
            co_return;
        m_sentRef = result->ref;
        m_sent = true;
    } else {
        const SendFailure failure = ApplyRules::enquiryFailure(result.error(), lang);
        if (failure.effect == SendFailure::Effect::signin)
            m_services.auth.sessionLost();
        else
            m_error = failure.message;
    }
    m_sending = false;
    Q_EMIT changed();
}

} // namespace vl
