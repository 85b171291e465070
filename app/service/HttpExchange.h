#pragma once

#include <QByteArray>
#include <QCoroTask>

class QNetworkReply;
class QObject;

namespace vl {

// What came back for one request: the HTTP status and body, or no HTTP answer at all.
struct HttpExchange {
    int status = -1;
    QByteArray body;

    bool answered() const { return status >= 0; }
};

// Aborts the reply when its owner goes away, so the request ends with its owner.
void cancelWithOwner(QNetworkReply* reply, QObject* owner);

// Waits for the reply to end and reads it, then releases it. A refused, dropped, timed-out or
// cancelled request is no answer, whatever part of a response had arrived.
QCoro::Task<HttpExchange> finish(QNetworkReply* reply);

} // namespace vl
