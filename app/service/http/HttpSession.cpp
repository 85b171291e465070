#include "app/service/http/HttpSession.h"

#include "app/service/http/HttpConnectionPool.h"
#include "app/service/http/HttpReply.h"

#include <QIODevice>
#include <optional>

namespace vl {

HttpSession::HttpSession(QObject* parent)
    : QNetworkAccessManager(parent)
    , m_pool(new HttpConnectionPool(this))
{
}

HttpSession::~HttpSession()
{
    // Replies hand their connections back to the pool and their answers to the cache as they
    // go, so they go first.
    const QList<HttpReply*> replies = findChildren<HttpReply*>(Qt::FindDirectChildrenOnly);
    qDeleteAll(replies);
    delete m_pool;
}

QNetworkReply* HttpSession::createRequest(Operation operation, const QNetworkRequest& request,
                                          QIODevice* outgoingData)
{
    const QString scheme = request.url().scheme().toLower();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return QNetworkAccessManager::createRequest(operation, request, outgoingData);

    QByteArray verb;
    switch (operation) {
    case HeadOperation:
        verb = "HEAD";
        break;
    case GetOperation:
        verb = "GET";
        break;
    case PutOperation:
        verb = "PUT";
        break;
    case PostOperation:
        verb = "POST";
        break;
    case DeleteOperation:
        verb = "DELETE";
        break;
    case CustomOperation:
        verb = request.attribute(QNetworkRequest::CustomVerbAttribute).toByteArray();
        break;
    case UnknownOperation:
        return QNetworkAccessManager::createRequest(operation, request, outgoingData);
    }

    // POST and PUT always carry a body, an empty one at least, so the server sees its length.
    std::optional<QByteArray> body;
    if (outgoingData)
        body = outgoingData->readAll();
    else if (operation == PostOperation || operation == PutOperation)
        body = QByteArray();

    QNetworkRequest adjusted = request;
    if (adjusted.transferTimeout() == 0)
        adjusted.setTransferTimeout(transferTimeout());
    if (autoDeleteReplies() &&
        !adjusted.attribute(QNetworkRequest::AutoDeleteReplyOnFinishAttribute).isValid())
        adjusted.setAttribute(QNetworkRequest::AutoDeleteReplyOnFinishAttribute, true);
    return new HttpReply(this, operation, adjusted, std::move(verb), std::move(body));
}

} // namespace vl
