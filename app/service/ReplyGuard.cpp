#include "app/service/ReplyGuard.h"

#include <QNetworkReply>

namespace vl {

namespace {

constexpr qint64 readAhead = 1024 * 1024;

bool sameOrigin(const QUrl& a, const QUrl& b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() &&
           a.port(a.scheme() == QLatin1StringView("https") ? 443 : 80) ==
               b.port(b.scheme() == QLatin1StringView("https") ? 443 : 80);
}

} // namespace

void ReplyGuard::watch(QNetworkReply* reply, Limits limits)
{
    new ReplyGuard(reply, limits);
}

ReplyGuard::ReplyGuard(QNetworkReply* reply, Limits limits)
    : QObject(reply)
    , m_reply(reply)
    , m_limits(limits)
    , m_current(reply->url())
{
    // Qt then stops reading from the socket once this much waits unread, so an endless answer
    // fills memory only a little past the limit before it is dropped.
    reply->setReadBufferSize(limits.answerBytes + readAhead);
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, reply, &QNetworkReply::abort);
    m_deadline.start(limits.deadlineMs);
    connect(reply, &QNetworkReply::metaDataChanged, this, &ReplyGuard::checkAnnouncedSize);
    connect(reply, &QNetworkReply::readyRead, this, &ReplyGuard::checkBuffered);
    connect(reply, &QNetworkReply::redirected, this, &ReplyGuard::checkRedirect);
    connect(reply, &QNetworkReply::finished, &m_deadline, &QTimer::stop);
}

void ReplyGuard::checkAnnouncedSize()
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && length.toLongLong() > m_limits.answerBytes)
        m_reply->abort();
}

void ReplyGuard::checkBuffered()
{
    if (m_reply->bytesAvailable() > m_limits.answerBytes)
        m_reply->abort();
}

void ReplyGuard::checkRedirect(const QUrl& target)
{
    const bool downgrade = m_current.scheme() == QLatin1StringView("https") &&
                           target.scheme() != QLatin1StringView("https");
    const bool leaks = m_limits.carriesBodyOrCredential && !sameOrigin(m_current, target);
    if (downgrade || leaks) {
        m_reply->abort();
        return;
    }
    m_current = target;
    Q_EMIT m_reply->redirectAllowed();
}

} // namespace vl
