#pragma once

#include <QObject>
#include <QTimer>
#include <QUrl>

class QNetworkReply;

namespace vl {

// Holds one reply to the limits of its request: it aborts the reply when the whole exchange
// outlasts its deadline (Qt's transfer time-out only notices silence, so a server that trickles
// bytes, or sends endless interim answers or trailers, would hold it forever), when the answer
// grows past the size limit, and when a redirect would downgrade from https or carry a body or
// a credential to another origin. An aborted reply ends as no answer.
class ReplyGuard final : public QObject {
    Q_OBJECT
public:
    struct Limits {
        int deadlineMs;
        qint64 answerBytes;
        // The request has a body, an Authorization header or cookies from the jar.
        bool carriesBodyOrCredential;
    };

    // The guard lives as long as the reply.
    static void watch(QNetworkReply* reply, Limits limits);

private:
    ReplyGuard(QNetworkReply* reply, Limits limits);

    void checkAnnouncedSize();
    void checkBuffered();
    void checkRedirect(const QUrl& target);

    QNetworkReply* m_reply;
    Limits m_limits;
    QUrl m_current;
    QTimer m_deadline;
};

} // namespace vl
