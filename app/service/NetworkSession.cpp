#include "app/service/NetworkSession.h"

#include <QNetworkDiskCache>
#include <QStandardPaths>

namespace vl {

std::unique_ptr<QNetworkAccessManager> makeNetworkSession()
{
    auto session = std::make_unique<QNetworkAccessManager>();
    auto* cache = new QNetworkDiskCache(session.get());
    cache->setCacheDirectory(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                             QStringLiteral("/http"));
    cache->setMaximumCacheSize(qint64(160) * 1024 * 1024);
    session->setCache(cache);
    return session;
}

} // namespace vl
