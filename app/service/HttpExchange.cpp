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

// Qt reports an answer with a 4xx or 5xx status as one of these errors; the answer is still
// whole. Every other error means the exchange broke, whatever part of it had arrived.
bool isStatusError(QNetworkReply::NetworkError error)
{
    if (error == QNetworkReply::ContentReSendError)
        return false;
    return (error >= QNetworkReply::ContentAccessDenied &&
            error <= QNetworkReply::UnknownContentError) ||
           error == QNetworkReply::ProtocolInvalidOperationError ||
           error == QNetworkReply::ProxyAuthenticationRequiredError ||
           (error >= QNetworkReply::InternalServerError &&
            error <= QNetworkReply::UnknownServerError);
}

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
    const QNetworkReply::NetworkError error = reply->error();
    if (error != QNetworkReply::NoError && !(status.toInt() >= 400 && isStatusError(error)))
        co_return HttpExchange{};
    QByteArray body = reply->readAll();
    // Qt keeps the error of a 4xx or 5xx status even when the connection then broke off.
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && reply->rawHeader("Content-Encoding").isEmpty() &&
        length.toLongLong() != body.size())
        co_return HttpExchange{};
    // Qt reads a chunk size it cannot parse as the last chunk and ends the answer there without
    // an error; a chunked answer that ends before its first byte is such a broken one.
    if (body.isEmpty() && reply->rawHeader("Transfer-Encoding").toLower().contains("chunked"))
        co_return HttpExchange{};
    co_return HttpExchange{status.toInt(), std::move(body)};
}

} // namespace vl
