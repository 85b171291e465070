#pragma once

#include <QNetworkAccessManager>

namespace vl {

class HttpConnectionPool;

// The client's QNetworkAccessManager. Qt's own HTTP backend adds Accept-Language,
// Accept-Encoding and a User-Agent to every request and cannot be told not to; the service
// must receive exactly the fields the client sets. So http and https go through our own
// HTTP/1.1 transport (HttpReply over pooled keep-alive connections), with the manager's cookie
// jar, cache, redirect policy and transfer time-out, while callers keep the standard
// QNetworkAccessManager and QNetworkReply API. Other schemes go to Qt as before.
class HttpSession : public QNetworkAccessManager {
    Q_OBJECT

public:
    explicit HttpSession(QObject* parent = nullptr);
    ~HttpSession() override;

    HttpConnectionPool* connectionPool() const { return m_pool; }

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    HttpConnectionPool* m_pool;
};

} // namespace vl
