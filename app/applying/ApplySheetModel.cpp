#include "app/applying/ApplySheetModel.h"

#include "app/applying/CvChoice.h"
#include "app/identity/CandidateAuth.h"
#include "app/identity/CandidateStore.h"
#include "app/platform/Preferences.h"
#include "app/shell/AppState.h"
#include "app/shell/ReviewAsk.h"
#include "core/l10n/L10n.h"

#include <QDateTime>
#include <QPointer>

namespace vl {

namespace {

const QString phoneKey = QStringLiteral("vl.myPhone");

} // namespace

ApplySheetModel::ApplySheetModel(ApplyServices services, JobDetail job, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_job(std::move(job))
{
    phone = m_services.preferences.string(phoneKey);
}

std::optional<QString> ApplySheetModel::email() const
{
    return m_services.auth.email();
}

QCoro::Task<> ApplySheetModel::open()
{
    m_lastCv = LastCv(m_services.preferences, m_services.lastCvFolder).load();
    Q_EMIT changed();
    if (!m_services.auth.signedIn())
        co_return;
    QPointer self(this);
    const auto read = co_await m_services.api.highscoresMe(m_services.state.lang(), this);
    if (!self || !read || !read->hint || read->hint->kind == QLatin1StringView("none"))
        co_return;
    m_hint = read->hint;
    Q_EMIT changed();
}

bool ApplySheetModel::choose(const QString& path)
{
    const CvChoice choice = chooseCv(path, m_services.state.lang(), m_cv, m_error);
    if (choice != CvChoice::unreadable)
        Q_EMIT changed();
    return choice == CvChoice::taken;
}

QCoro::Task<> ApplySheetModel::runCheck()
{
    if (!m_cv)
        co_return;
    const int run = ++m_checkRun;
    m_check.reset();
    m_checking = true;
    Q_EMIT changed();
    QPointer self(this);
    auto result =
        co_await m_services.api.fitCheck(m_job.ref, m_services.state.lang(), *m_cv, {}, this);
    if (!self || run != m_checkRun)
        co_return;
    m_check = result ? std::optional(std::move(result).value()) : std::nullopt;
    m_checking = false;
    Q_EMIT changed();
}

QCoro::Task<> ApplySheetModel::pick(QString path)
{
    if (choose(path))
        co_await runCheck();
}

QCoro::Task<> ApplySheetModel::useLastCv()
{
    if (!m_lastCv)
        co_return;
    m_error.reset();
    m_cv = m_lastCv;
    co_await runCheck();
}

QCoro::Task<> ApplySheetModel::send()
{
    if (m_sending || m_sent)
        co_return;
    const ApplyDraft draft{name, phone, message, m_cv, poolOptOut, useTicket, answers};
    const auto email = m_services.auth.email();
    if (const auto refusal = ApplyRules::validate(draft, email, m_job)) {
        if (refusal->message)
            m_error = L10n::text(*refusal->message, m_services.state.lang());
        if (refusal->badField)
            m_badField = refusal->badField;
        Q_EMIT changed();
        co_return;
    }
    m_badField.reset();
    m_error.reset();
    m_sending = true;
    Q_EMIT changed();
    QPointer self(this);
    auto result = co_await m_services.api.apply(draft, *email, m_job.ref, m_hint,
                                                m_services.state.lang(), this);
    if (!self)
        co_return;
    if (result)
        co_await succeed(std::move(result).value(), draft.cv);
    else
        fail(result.error());
    if (!self)
        co_return;
    m_sending = false;
    Q_EMIT changed();
}

QCoro::Task<> ApplySheetModel::succeed(CandidateCredential credential, std::optional<CvFile> cv)
{
    QPointer self(this);
    CandidateStore& store = m_services.store;
    co_await store.open();
    if (!store.entry(credential.ref)) {
        // Built apart from the await: g++ 12 mishandles a braced temporary inside co_await.
        CandidateEntry entry{credential.ref,
                             credential.token,
                             m_job.title,
                             m_job.employerName,
                             QStringLiteral("application"),
                             QDateTime::currentDateTimeUtc()};
        co_await store.add(std::move(entry));
    }
    if (!self)
        co_return;
    m_moment = credential.hsText;
    if (cv)
        LastCv(m_services.preferences, m_services.lastCvFolder).remember(*cv);
    const QString trimmedPhone = phone.trimmed();
    if (!trimmedPhone.isEmpty())
        m_services.preferences.setValue(phoneKey, trimmedPhone);
    m_sentRef = credential.ref;
    m_sent = true;
    m_services.review.record(ReviewAsk::GoodMoment::applicationSent);
}

void ApplySheetModel::fail(const APIError& error)
{
    const SendFailure failure = ApplyRules::applyFailure(error, m_services.state.lang());
    switch (failure.effect) {
    case SendFailure::Effect::signin:
        m_services.auth.sessionLost();
        return;
    case SendFailure::Effect::webFormOnly:
        m_webFormOnly = true;
        break;
    case SendFailure::Effect::message:
        break;
    }
    m_error = failure.message;
}

QCoro::Task<> ApplySheetModel::switchAccount()
{
    co_await m_services.auth.signOut();
}

} // namespace vl
