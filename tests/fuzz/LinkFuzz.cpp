// Links from outside and notification paths: every reader of them takes any text, and what the
// router strips is never empty.

#include "core/identity/OAuthCallback.h"
#include "core/navigation/PushRoutes.h"
#include "core/navigation/WebLink.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    static const vl::PushRoutes routes(QStringLiteral("https://velmora.ge"));
    const QString path = routes.normalise(text);
    if (path.isEmpty())
        std::abort();
    (void)routes.route(text);
    (void)routes.route(path);
    (void)vl::PushRoutes::refOfSlug(text);
    const QUrl url(text);
    (void)routes.isOwn(url);
    (void)vl::vacancyRefOfWebLink(url);
    (void)vl::parseOAuthCallback(url);
    return 0;
}
