#include "app/service/NetworkSession.h"

#include "app/service/http/HttpSession.h"

#include <QNetworkDiskCache>
#include <QStandardPaths>

namespace vl {

std::unique_ptr<QNetworkAccessManager> makeNetworkSession()
{
    std::unique_ptr<QNetworkAccessManager> session = std::make_unique<HttpSession>();
    auto* cache = new QNetworkDiskCache(session.get());
    cache->setCacheDirectory(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                             QStringLiteral("/http"));
    cache->setMaximumCacheSize(qint64(160) * 1024 * 1024);
    session->setCache(cache);
    return session;
}

} // namespace vl
