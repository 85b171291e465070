#include "app/applying/ApplyingAPI.h"

#include "core/service/JsonBody.h"
#include "core/service/MultipartForm.h"

#include <QUuid>

namespace vl {

namespace {

using Shape = APIClient::Shape;

APIClient::Request jsonWrite(const QString& path, QByteArray body)
{
    return {.shape = Shape::jsonWrite,
            .path = path,
            .body = std::move(body),
            .contentType = "application/json"};
}

// The job seeker's own reads are private: never from the shared cache.
APIClient::Request privateRead(const QString& path, APIClient::Query query)
{
    return {.shape = Shape::taggedRead, .path = path, .query = std::move(query), .fresh = true};
}

APIClient::Request multipart(const QString& path, MultipartForm&& form, APIClient::Query query = {})
{
    const QByteArray type = form.contentType();
    return {.shape = Shape::multipartWrite,
            .path = path,
            .query = std::move(query),
            .body = std::move(form).takeBody(),
            .contentType = type,
            .timeoutMs = APIClient::defaultTimeoutMs};
}

QString newBoundary()
{
    return QStringLiteral("vl-") + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

APIClient::Request ApplyingAPI::applyRequest(const ApplyDraft& draft, const QString& email,
                                             const QString& jobRef,
                                             const std::optional<HsHint>& hint, Lang lang)
{
    const QString boundary = newBoundary();
    return {.shape = Shape::multipartWrite,
            .path = QStringLiteral("apply"),
            .query = {{QStringLiteral("locale"), rawValue(lang)}},
            .body = ApplyRules::body(draft, email, jobRef, hint, boundary),
            .contentType = "multipart/form-data; boundary=" + boundary.toUtf8(),
            .timeoutMs = APIClient::defaultTimeoutMs};
}

QCoro::Task<Result<CandidateCredential>> ApplyingAPI::apply(ApplyDraft draft, QString email,
                                                            QString jobRef,
                                                            std::optional<HsHint> hint, Lang lang,
                                                            QObject* owner) const
{
    return m_api.call<CandidateCredential>(applyRequest(draft, email, jobRef, hint, lang), owner);
}

QCoro::Task<Result<CandidateCredential>> ApplyingAPI::enquiry(QString name, QString email,
                                                              QString phone, QString message,
                                                              QString jobRef, QObject* owner) const
{
    return m_api.call<CandidateCredential>(
        jsonWrite(QStringLiteral("enquiry"), stringBody({{QStringLiteral("name"), name},
                                                         {QStringLiteral("email"), email},
                                                         {QStringLiteral("phone"), phone},
                                                         {QStringLiteral("message"), message},
                                                         {QStringLiteral("job"), jobRef}})),
        owner);
}

QCoro::Task<Result<CvCheckPayload>> ApplyingAPI::fitCheck(QString jobRef, Lang lang, CvFile cv,
                                                          QString key, QObject* owner) const
{
    MultipartForm form(newBoundary());
    form.reserve(1024 + cv.data.size());
    form.text(QStringLiteral("job"), jobRef);
    form.text(QStringLiteral("locale"), rawValue(lang));
    form.textIfAny(QStringLiteral("key"), key);
    form.file(QStringLiteral("cv"), cv.filename, cv.mime, cv.data);
    return m_api.call<CvCheckPayload>(multipart(QStringLiteral("fit/check"), std::move(form)),
                                      owner);
}

QCoro::Task<Result<HsMeOnly>> ApplyingAPI::highscoresMe(Lang lang, QObject* owner) const
{
    return m_api.call<HsMeOnly>({.shape = Shape::plainRead,
                                 .path = QStringLiteral("highscores"),
                                 .query = {{QStringLiteral("locale"), rawValue(lang)},
                                           {QStringLiteral("scope"), QStringLiteral("me")}},
                                 .fresh = true},
                                owner);
}

QCoro::Task<Result<MyActivityPayload>> ApplyingAPI::myActivity(QObject* owner) const
{
    return m_api.call<MyActivityPayload>(privateRead(QStringLiteral("my/activity"), {}), owner);
}

QCoro::Task<Result<CandidateActivityPayload>> ApplyingAPI::candidateActivity(QString key,
                                                                             QObject* owner) const
{
    APIClient::Query query;
    if (!key.isEmpty())
        query[QStringLiteral("key")] = key;
    return m_api.call<CandidateActivityPayload>(
        privateRead(QStringLiteral("candidate/activity"), std::move(query)), owner);
}

QCoro::Task<Result<CandidateConversation>> ApplyingAPI::application(QString ref, QString key,
                                                                    QObject* owner) const
{
    APIClient::Query query;
    if (!key.isEmpty())
        query[QStringLiteral("key")] = key;
    return m_api.call<CandidateConversation>(
        privateRead(QStringLiteral("candidate/") + ref, std::move(query)), owner);
}

QCoro::Task<Result<WithdrawResult>> ApplyingAPI::withdraw(QString ref, QString key,
                                                          QObject* owner) const
{
    return m_api.call<WithdrawResult>(
        jsonWrite(QStringLiteral("candidate/") + ref,
                  stringBody({{QStringLiteral("key"), key},
                              {QStringLiteral("action"), QStringLiteral("withdraw")}})),
        owner);
}

QCoro::Task<Result<CandidateCvUpdate>> ApplyingAPI::updateCv(QString ref, QString key, QString note,
                                                             CvFile cv, QObject* owner) const
{
    MultipartForm form(newBoundary());
    form.reserve(1024 + cv.data.size());
    form.text(QStringLiteral("key"), key);
    form.textIfAny(QStringLiteral("note"), note);
    form.file(QStringLiteral("cv"), cv.filename, cv.mime, cv.data);
    return m_api.call<CandidateCvUpdate>(
        multipart(QStringLiteral("candidate/") + ref + QStringLiteral("/cv"), std::move(form)),
        owner);
}

QCoro::Task<Result<QByteArray>> ApplyingAPI::cvFile(QString ref, QString key, QObject* owner) const
{
    APIClient::Query query;
    if (!key.isEmpty())
        query[QStringLiteral("key")] = key;
    const APIClient::Request request =
        privateRead(QStringLiteral("candidate/") + ref + QStringLiteral("/cv"), std::move(query));
    QNetworkReply* reply = m_api.send(request, owner);
    const HttpExchange got = co_await finish(reply);
    if (!got.answered())
        co_return APIError::network();
    if (got.status != 200)
        co_return APIError::http(got.status);
    co_return got.body;
}

QCoro::Task<Result<CvTextPayload>> ApplyingAPI::cvText(QString id, Lang to, QObject* owner) const
{
    return m_api.call<CvTextPayload>(
        {.shape = Shape::plainRead,
         .path = QStringLiteral("cv-text"),
         .query = {{QStringLiteral("id"), id}, {QStringLiteral("to"), rawValue(to)}},
         .fresh = true},
        owner);
}

QCoro::Task<Result<SeekerPostResult>> ApplyingAPI::postSeeker(SeekerPostForm form,
                                                              QObject* owner) const
{
    return m_api.call<SeekerPostResult>(jsonWrite(QStringLiteral("seekers/post"), form.body()),
                                        owner);
}

QCoro::Task<Result<SeekerDetail>> ApplyingAPI::seeker(QString ref, Lang lang, QObject* owner) const
{
    return m_api.call<SeekerDetail>({.shape = Shape::plainRead,
                                     .path = QStringLiteral("seekers/") + ref,
                                     .query = {{QStringLiteral("locale"), rawValue(lang)}}},
                                    owner);
}

QCoro::Task<Result<SeekerContactResult>> ApplyingAPI::contactSeeker(QString ref, QString message,
                                                                    QObject* owner) const
{
    return m_api.call<SeekerContactResult>(
        jsonWrite(QStringLiteral("seekers/") + ref + QStringLiteral("/contact"),
                  stringBody({{QStringLiteral("message"), message}})),
        owner);
}

} // namespace vl
