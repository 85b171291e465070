#pragma once

#include "app/service/APIClient.h"
#include "core/applying/ApplyRules.h"
#include "core/applying/CandidateActivityPayload.h"
#include "core/applying/CandidateApplication.h"
#include "core/applying/CandidateCredential.h"
#include "core/applying/CvCheckPayload.h"
#include "core/applying/MyActivityPayload.h"
#include "core/applying/SeekerPostForm.h"
#include "core/applying/SeekerRecords.h"
#include "core/reputation/Highscores.h"

#include <optional>

namespace vl {

// A withdrawal's answer: the application's status afterwards.
struct WithdrawResult {
    QString status;
    VL_JSON_FIELDS(WithdrawResult, status)
};

// The job seeker's operations: applying and asking, the CV check, their own applications, and
// seeker posts. Calls of the job seeker carry the session cookie from the shared jar, or the
// application's `key`; a seeker contact is the employer's and carries the employer's token.
class ApplyingAPI {
public:
    explicit ApplyingAPI(const APIClient& api)
        : m_api(api)
    {
    }

    // The whole body is built once; `email` is the signed-in address, `jobRef` the listing's.
    QCoro::Task<Result<CandidateCredential>> apply(ApplyDraft draft, QString email, QString jobRef,
                                                   std::optional<HsHint> hint, Lang lang,
                                                   QObject* owner) const;
    QCoro::Task<Result<CandidateCredential>> enquiry(QString name, QString email, QString phone,
                                                     QString message, QString jobRef,
                                                     QObject* owner) const;
    // `key` goes only when there is one.
    QCoro::Task<Result<CvCheckPayload>> fitCheck(QString jobRef, Lang lang, CvFile cv, QString key,
                                                 QObject* owner) const;
    QCoro::Task<Result<HsMeOnly>> highscoresMe(Lang lang, QObject* owner) const;

    QCoro::Task<Result<MyActivityPayload>> myActivity(QObject* owner) const;
    QCoro::Task<Result<CandidateActivityPayload>> candidateActivity(QString key,
                                                                    QObject* owner) const;
    QCoro::Task<Result<CandidateConversation>> application(QString ref, QString key,
                                                           QObject* owner) const;
    QCoro::Task<Result<WithdrawResult>> withdraw(QString ref, QString key, QObject* owner) const;
    QCoro::Task<Result<CandidateCvUpdate>> updateCv(QString ref, QString key, QString note,
                                                    CvFile cv, QObject* owner) const;
    // The CV's bytes as the employer has them.
    QCoro::Task<Result<QByteArray>> cvFile(QString ref, QString key, QObject* owner) const;
    QCoro::Task<Result<CvTextPayload>> cvText(QString id, Lang to, QObject* owner) const;

    QCoro::Task<Result<SeekerPostResult>> postSeeker(SeekerPostForm form, QObject* owner) const;
    QCoro::Task<Result<SeekerDetail>> seeker(QString ref, Lang lang, QObject* owner) const;
    QCoro::Task<Result<SeekerContactResult>> contactSeeker(QString ref, QString message,
                                                           QObject* owner) const;

    // Both the apply body and its request, for whoever needs to see the bytes.
    static APIClient::Request applyRequest(const ApplyDraft& draft, const QString& email,
                                           const QString& jobRef, const std::optional<HsHint>& hint,
                                           Lang lang);

private:
    const APIClient& m_api;
};

} // namespace vl
