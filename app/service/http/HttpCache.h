#pragma once

#include "app/service/http/HttpResponseHead.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QNetworkCacheMetaData>
#include <QNetworkRequest>
#include <QPair>
#include <QUrl>
#include <optional>

class QAbstractNetworkCache;

namespace vl {

// HTTP caching rules of a private cache, over any QAbstractNetworkCache: which answers are
// kept, how long a kept answer stays fresh, and how a stale one is revalidated. An entry's
// expiration date is the moment, on our own clock, its freshness ends; an entry without one is
// stale from the start and only good for revalidation.
class HttpCache {
public:
    explicit HttpCache(QAbstractNetworkCache* store);

    // The stored answer to a GET of the URL, if one exists and was given for the same values of
    // the request fields it varies on.
    std::optional<QNetworkCacheMetaData> lookup(const QUrl& url,
                                                const QNetworkRequest& request) const;
    std::optional<QByteArray> body(const QUrl& url) const;

    static bool isFresh(const QNetworkCacheMetaData& stored, const QDateTime& now);
    // If-None-Match and If-Modified-Since for the stored answer's validators.
    static QList<QPair<QByteArray, QByteArray>> validators(const QNetworkCacheMetaData& stored);
    // Whether a 200 answer to a GET is worth keeping: it says how long it stays fresh or how to
    // revalidate it, and neither side forbids storing it.
    static bool canStore(const HttpResponseHead& head, const QNetworkRequest& request);
    static QNetworkCacheMetaData describe(const QUrl& url, const HttpResponseHead& head,
                                          const QNetworkRequest& request,
                                          const QDateTime& received);
    // The stored answer updated by the fields of a 304 that confirmed it.
    static QNetworkCacheMetaData refresh(const QNetworkCacheMetaData& stored,
                                         const HttpResponseHead& notModified,
                                         const QDateTime& received);

private:
    QAbstractNetworkCache* m_store;
};

} // namespace vl
