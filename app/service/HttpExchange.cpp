#include "app/service/HttpExchange.h"

#include <QCoroNetworkReply>
#include <QNetworkReply>
#include <memory>

namespace vl {

namespace {

// QCoro resumes inside the reply's `finished`, so the reply may only be released later.
struct ReplyDeleter {
    void operator()(QNetworkReply* reply) const { reply->deleteLater(); }
};

} // namespace

void cancelWithOwner(QNetworkReply* reply, QObject* owner)
{
    if (owner)
        QObject::connect(owner, &QObject::destroyed, reply, &QNetworkReply::abort);
}

QCoro::Task<HttpExchange> finish(QNetworkReply* raw)
{
    std::unique_ptr<QNetworkReply, ReplyDeleter> reply(raw);
    co_await reply.get();
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (!status.isValid())
        co_return HttpExchange{};
    switch (reply->error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::RemoteHostClosedError:
        co_return HttpExchange{};
    default:
        break;
    }
    co_return HttpExchange{status.toInt(), reply->readAll()};
}

} // namespace vl
