#pragma once

#include "app/service/http/HttpResponseHead.h"

#include <QByteArray>
#include <QList>
#include <QNetworkAccessManager>
#include <QNetworkCacheMetaData>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPair>
#include <QPointer>
#include <QSslConfiguration>
#include <QSslError>
#include <QTimer>
#include <QUrl>
#include <optional>

class QAbstractNetworkCache;

namespace vl {

class HttpConnection;
class HttpSession;

// One request of an HttpSession, from the first byte written to the last byte of the answer
// the caller sees: it answers from the cache where it may, sends the request over a pooled
// connection, follows redirects, sends once more when a reused connection turns out to have
// been closed by the server, and finishes exactly once.
class HttpReply : public QNetworkReply {
    Q_OBJECT

public:
    // `body` is the whole outgoing body; without one no Content-Length is sent.
    HttpReply(HttpSession* session, QNetworkAccessManager::Operation operation,
              const QNetworkRequest& request, QByteArray verb, std::optional<QByteArray> body);
    ~HttpReply() override;

    void abort() override;
    void ignoreSslErrors() override;
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    void ignoreSslErrorsImplementation(const QList<QSslError>& errors) override;
    void sslConfigurationImplementation(QSslConfiguration& configuration) const override;
    void setSslConfigurationImplementation(const QSslConfiguration& configuration) override;

private:
    // What the answer on the current connection is for.
    enum class Answer { Pending, Presented, Redirect, NotModified };

    void startHop();
    bool answerFromCache();
    bool serveStored(const QNetworkCacheMetaData& stored);
    void sendOverNetwork(bool freshConnection);
    QByteArray requestBytes() const;
    bool isFollowable(const HttpResponseHead& head) const;
    bool isPoolable() const;
    void follow(const HttpResponseHead& head);
    void storeCookies(const HttpResponseHead& head);
    void present(int status, const QByteArray& reason,
                 const QList<QPair<QByteArray, QByteArray>>& fields, bool fromCache);
    void appendBody(const QByteArray& chunk);
    void prepareCacheWrite(const HttpResponseHead& head);
    void completeCacheWrite();
    void cancelCacheWrite();

    void onHead();
    void onBody(const QByteArray& chunk);
    void onCompleted();
    void onFailed(QNetworkReply::NetworkError error, const QString& message);
    void onWritten(qint64 written);
    void onSslErrors(const QList<QSslError>& errors);
    void onIdle();

    void releaseConnection(bool reusable);
    void finish(QNetworkReply::NetworkError error = NoError, const QString& message = {});

    QPointer<HttpSession> m_session;
    QByteArray m_verb;
    QUrl m_url;
    QList<QPair<QByteArray, QByteArray>> m_fields;
    std::optional<QByteArray> m_body;
    // The configuration new connections start from, and the one the last connection settled on.
    QSslConfiguration m_tls;
    QSslConfiguration m_usedTls;
    bool m_ignoresAllSslErrors = false;
    QList<QSslError> m_expectedSslErrors;

    QPointer<HttpConnection> m_connection;
    qint64 m_headLength = 0;
    qint64 m_requestLength = 0;
    bool m_requestSent = false;
    bool m_resent = false;
    int m_redirects = 0;
    Answer m_answer = Answer::Pending;
    std::optional<QNetworkCacheMetaData> m_stored;
    QPointer<QAbstractNetworkCache> m_cacheStore;
    QPointer<QIODevice> m_cacheWriter;
    QTimer m_idleTimer;
    bool m_done = false;

    QByteArray m_buffer;
    qsizetype m_readPos = 0;
    qint64 m_received = 0;
    qint64 m_total = -1;
};

} // namespace vl
