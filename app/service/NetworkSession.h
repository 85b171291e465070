#pragma once

#include <QList>
#include <QNetworkAccessManager>
#include <QSslCertificate>
#include <memory>

namespace vl {

// The one network session of the process, over Qt's own HTTP stack. Its cookie jar holds the
// job seeker's session cookie and its disk cache (160 MiB in the XDG cache folder) answers
// reads as the service's headers allow. Every request it starts is held to what the stack
// alone does not promise: a write is never sent twice, an answer is bounded in size and in
// total time, a redirect never downgrades nor carries a body or a credential to another origin,
// and nothing sent with a credential reaches the disk cache.
class NetworkSession : public QNetworkAccessManager {
    Q_OBJECT
public:
    // Far above any real page; an answer that grows past it is dropped.
    static constexpr qint64 answerLimit = qint64(64) * 1024 * 1024;
    // The whole exchange of a request that names no time-out of its own.
    static constexpr int defaultDeadlineMs = 60000;

    explicit NetworkSession(QObject* parent = nullptr);

    // Authorities trusted on top of the system's, for a service whose certificate the system
    // does not know (a test's own authority).
    void trustAuthorities(QList<QSslCertificate> authorities);

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    bool carriesCredential(const QNetworkRequest& request) const;

    QList<QSslCertificate> m_authorities;
};

std::unique_ptr<NetworkSession> makeNetworkSession();

// Empties the disk cache, so nothing read for a signed-in identity outlives its sign-out.
void forgetCachedAnswers(QNetworkAccessManager& session);

} // namespace vl
