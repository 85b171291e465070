#include "app/service/APIClient.h"

#include "core/service/JsonBody.h"

#include <QNetworkAccessManager>

namespace vl {

namespace {

bool tagged(APIClient::Shape shape)
{
    using Shape = APIClient::Shape;
    return shape == Shape::taggedRead || shape == Shape::jsonWrite || shape == Shape::deleteCall ||
           shape == Shape::multipartWrite;
}

bool writes(APIClient::Shape shape)
{
    using Shape = APIClient::Shape;
    return shape == Shape::jsonWrite || shape == Shape::deleteCall ||
           shape == Shape::multipartWrite;
}

} // namespace

APIClient::APIClient(QNetworkAccessManager* session, const QString& site, TokenSource token)
    : m_session(session)
    , m_site(site.endsWith(QLatin1Char('/')) ? site.chopped(1) : site)
    , m_base(m_site + QStringLiteral("/api/app/v1"))
    , m_token(std::move(token))
{
}

QUrl APIClient::url(const QString& path, const Query& query) const
{
    // The path is one component: what a URL would read as its query or fragment ("?", "#"),
    // and "%" itself, is encoded, while its slashes stay separators.
    const QByteArray encoded = QUrl::toPercentEncoding(path, "/");
    QUrl result = path.startsWith(QLatin1StringView("/api/"))
                      ? QUrl::fromEncoded(m_site.toUtf8() + encoded, QUrl::StrictMode)
                      : QUrl::fromEncoded(m_base.toEncoded() + '/' + encoded, QUrl::StrictMode);
    if (!query.empty()) {
        // Each key and value is percent-encoded whole, so "+", "&" and "=" inside a search
        // arrive as typed.
        QByteArray text;
        for (const auto& [key, value] : query) {
            if (!text.isEmpty())
                text += '&';
            text += QUrl::toPercentEncoding(key) + '=' + QUrl::toPercentEncoding(value);
        }
        result.setQuery(QString::fromLatin1(text), QUrl::StrictMode);
    }
    Q_ASSERT(result.isValid());
    return result;
}

QNetworkRequest APIClient::buildRequest(const Request& request) const
{
    QNetworkRequest out(url(request.path, request.query));
    out.setTransferTimeout(request.timeoutMs);
    out.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                     QNetworkRequest::NoLessSafeRedirectPolicy);
    if (request.fresh)
        out.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    if (tagged(request.shape))
        out.setRawHeader("x-vl-client", "ios");
    if (writes(request.shape))
        out.setRawHeader("Origin", m_site.toUtf8());

    const bool mayCarryToken = request.shape == Shape::bearerRead || writes(request.shape);
    if (mayCarryToken) {
        const std::optional<QString> token = request.token ? request.token : m_token();
        if (token || request.bearerAlways)
            out.setRawHeader("Authorization", "Bearer " + token.value_or(QString()).toUtf8());
    }
    if (!request.contentType.isEmpty())
        out.setRawHeader("Content-Type", request.contentType);
    return out;
}

QNetworkReply* APIClient::send(const Request& request, QObject* owner) const
{
    Q_ASSERT(m_session);
    const QNetworkRequest built = buildRequest(request);
    QNetworkReply* reply = nullptr;
    switch (request.shape) {
    case Shape::plainRead:
    case Shape::taggedRead:
    case Shape::bearerRead:
        reply = m_session->get(built);
        break;
    case Shape::jsonWrite:
    case Shape::multipartWrite:
        reply = m_session->post(built, request.body);
        break;
    case Shape::deleteCall:
        reply = m_session->deleteResource(built);
        break;
    }
    cancelWithOwner(reply, owner);
    return reply;
}

QCoro::Task<HttpExchange> APIClient::exchange(Request request, QObject* owner) const
{
    return finish(send(request, owner));
}

namespace {

APIClient::Request jsonWrite(const QString& path, QByteArray body)
{
    return {.shape = APIClient::Shape::jsonWrite,
            .path = path,
            .body = std::move(body),
            .contentType = "application/json"};
}

} // namespace

QCoro::Task<Result<ConfigPayload>> APIClient::config(QObject* owner) const
{
    return call<ConfigPayload>({.shape = Shape::plainRead, .path = QStringLiteral("config")},
                               owner);
}

QCoro::Task<Result<MePayload>> APIClient::me(QObject* owner) const
{
    return call<MePayload>({.shape = Shape::bearerRead, .path = QStringLiteral("me")}, owner);
}

QCoro::Task<Result<ProfilePayload>> APIClient::updateMe(QString name, QString website,
                                                        QString phone, QObject* owner) const
{
    return call<ProfilePayload>(
        jsonWrite(QStringLiteral("me"), stringBody({{QStringLiteral("name"), name},
                                                    {QStringLiteral("website"), website},
                                                    {QStringLiteral("phone"), phone}})),
        owner);
}

QCoro::Task<Result<Nothing>> APIClient::deleteMe(QObject* owner) const
{
    return call<Nothing>({.shape = Shape::deleteCall, .path = QStringLiteral("me")}, owner);
}

QCoro::Task<Result<Nothing>> APIClient::authRequest(QString email, Lang locale,
                                                    QObject* owner) const
{
    return call<Nothing>(jsonWrite(QStringLiteral("auth/request"),
                                   stringBody({{QStringLiteral("email"), email},
                                               {QStringLiteral("locale"), rawValue(locale)}})),
                         owner);
}

QCoro::Task<Result<AuthVerifyPayload>> APIClient::authVerify(QString email, QString code,
                                                             QObject* owner) const
{
    return call<AuthVerifyPayload>(
        jsonWrite(QStringLiteral("auth/verify"),
                  stringBody({{QStringLiteral("email"), email}, {QStringLiteral("code"), code}})),
        owner);
}

QCoro::Task<Result<Nothing>> APIClient::authLogout(QString pushToken, QString voipToken,
                                                   QObject* owner) const
{
    return call<Nothing>(jsonWrite(QStringLiteral("auth/logout"),
                                   stringBody({{QStringLiteral("pushToken"), pushToken},
                                               {QStringLiteral("voipToken"), voipToken}})),
                         owner);
}

QCoro::Task<Result<Page<JobSummary>>>
APIClient::jobs(JobKind kind, Lang lang, int page, QString query, std::optional<QString> category,
                std::optional<QString> city, std::optional<QString> sort, bool direct,
                QuickPicks picks, bool fresh, QObject* owner) const
{
    Query items{{QStringLiteral("kind"), rawValue(kind)},
                {QStringLiteral("locale"), rawValue(lang)},
                {QStringLiteral("page"), QString::number(page)}};
    if (!query.isEmpty())
        items[QStringLiteral("q")] = query;
    if (category)
        items[QStringLiteral("category")] = *category;
    // A chosen city outranks the remote pick; the chip stays lit all the same.
    if (city)
        items[QStringLiteral("city")] = *city;
    else if (picks.remote)
        items[QStringLiteral("city")] = QStringLiteral("remote");
    if (sort)
        items[QStringLiteral("sort")] = *sort;
    if (direct)
        items[QStringLiteral("direct")] = QStringLiteral("1");
    if (picks.today)
        items[QStringLiteral("since")] = QStringLiteral("today");
    if (picks.noExperience)
        items[QStringLiteral("noexp")] = QStringLiteral("1");
    if (picks.english)
        items[QStringLiteral("english")] = QStringLiteral("1");
    if (picks.partTime)
        items[QStringLiteral("type")] = QStringLiteral("part");
    if (picks.pay)
        items[QStringLiteral("pay")] = QStringLiteral("1500");
    return list<JobSummary>({.shape = Shape::taggedRead,
                             .path = QStringLiteral("jobs"),
                             .query = std::move(items),
                             .fresh = fresh},
                            owner);
}

QCoro::Task<Result<BoardSummary>> APIClient::board(JobKind kind, Lang lang, QObject* owner) const
{
    return call<BoardSummary>({.shape = Shape::plainRead,
                               .path = QStringLiteral("board"),
                               .query = {{QStringLiteral("kind"), rawValue(kind)},
                                         {QStringLiteral("locale"), rawValue(lang)}}},
                              owner);
}

QCoro::Task<Result<JobDetail>> APIClient::jobDetail(QString ref, Lang lang, QObject* owner) const
{
    return call<JobDetail>({.shape = Shape::plainRead,
                            .path = QStringLiteral("jobs/") + ref,
                            .query = {{QStringLiteral("locale"), rawValue(lang)},
                                      {QStringLiteral("forms"), QStringLiteral("1")}}},
                           owner);
}

} // namespace vl
