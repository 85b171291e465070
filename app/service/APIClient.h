#pragma once

#include "app/service/HttpExchange.h"
#include "core/discovery/BoardSummary.h"
#include "core/discovery/JobDetail.h"
#include "core/discovery/JobKind.h"
#include "core/discovery/JobSummary.h"
#include "core/discovery/QuickPicks.h"
#include "core/l10n/Lang.h"
#include "core/service/Answer.h"
#include "core/session/ConfigPayload.h"
#include "core/session/MePayload.h"

#include <QCoroNetworkReply>
#include <QCoroTask>
#include <QNetworkReply>
#include <QPointer>
#include <QUrl>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QNetworkAccessManager;

namespace vl {

// The one typed path to the service's JSON API. A plain value: two addresses, the shared session
// and a way to read the employer's token when a request is built. Every operation fails once, as
// an APIError, and never retries.
//
// Each operation takes the object that owns the request: when the owner goes away the request
// is aborted, and the operation ends as `network`, which the owner no longer hears.
class APIClient {
public:
    using TokenSource = std::function<std::optional<QString>()>;
    using Query = std::map<QString, QString>;
    using QuickPicks = vl::QuickPicks;

    enum class Shape { plainRead, taggedRead, bearerRead, jsonWrite, deleteCall, multipartWrite };

    struct Request {
        Shape shape = Shape::plainRead;
        QString path{};    // under `base`, or from the origin when it starts with "/api/"
        Query query{};     // empty: no query at all
        QByteArray body{}; // for the two write shapes
        QByteArray contentType{};
        bool fresh = false;             // bypass the shared cache
        bool bearerAlways = false;      // send Authorization even without a token
        std::optional<QString> token{}; // the job seeker's side passes its own
        int timeoutMs = 60000;
    };

    static constexpr int defaultTimeoutMs = 60000;
    static constexpr int uploadTimeoutMs = 90000;

    APIClient(QNetworkAccessManager* session, const QString& site, TokenSource token);

    const QUrl& base() const { return m_base; }
    const QString& site() const { return m_site; }

    QUrl url(const QString& path, const Query& query = {}) const;
    QNetworkRequest buildRequest(const Request& request) const;
    QNetworkReply* send(const Request& request, QObject* owner) const;

    // An enveloped call whose `data` is a T.
    template <class T>
    QCoro::Task<Result<T>> call(Request request, QObject* owner) const
    {
        const auto got = co_await exchange(std::move(request), owner);
        if (!got.answered())
            co_return APIError::network();
        co_return answer::read<T>(got.body, got.status);
    }

    // An enveloped list call: the rows and their paging.
    template <class T>
    QCoro::Task<Result<Page<T>>> list(Request request, QObject* owner) const
    {
        const auto got = co_await exchange(std::move(request), owner);
        if (!got.answered())
            co_return APIError::network();
        co_return answer::readPage<T>(got.body, got.status);
    }

    // A chat send, read tolerantly: refusals carry the service's words.
    template <class T>
    QCoro::Task<Result<answer::ChatSendResult<T>>> chatSend(Request request, QObject* owner) const
    {
        const auto got = co_await exchange(std::move(request), owner);
        if (!got.answered())
            co_return APIError::network();
        co_return answer::readChatSend<T>(got.body, got.status);
    }

    // Session and configuration.
    QCoro::Task<Result<ConfigPayload>> config(QObject* owner) const;
    QCoro::Task<Result<MePayload>> me(QObject* owner) const;
    QCoro::Task<Result<ProfilePayload>> updateMe(QString name, QString website, QString phone,
                                                 QObject* owner) const;
    QCoro::Task<Result<Nothing>> deleteMe(QObject* owner) const;
    QCoro::Task<Result<Nothing>> authRequest(QString email, Lang locale, QObject* owner) const;
    QCoro::Task<Result<AuthVerifyPayload>> authVerify(QString email, QString code,
                                                      QObject* owner) const;
    QCoro::Task<Result<Nothing>> authLogout(QString pushToken, QString voipToken,
                                            QObject* owner) const;

    // Board.
    QCoro::Task<Result<Page<JobSummary>>> jobs(JobKind kind, Lang lang, int page, QString query,
                                               std::optional<QString> category,
                                               std::optional<QString> city,
                                               std::optional<QString> sort, bool direct,
                                               QuickPicks picks, bool fresh, QObject* owner) const;
    QCoro::Task<Result<BoardSummary>> board(JobKind kind, Lang lang, QObject* owner) const;
    QCoro::Task<Result<JobDetail>> jobDetail(QString ref, Lang lang, QObject* owner) const;

private:
    QCoro::Task<HttpExchange> exchange(Request request, QObject* owner) const;

    QPointer<QNetworkAccessManager> m_session;
    QString m_site;
    QUrl m_base;
    TokenSource m_token;
};

} // namespace vl
