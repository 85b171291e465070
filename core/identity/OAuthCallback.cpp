#include "core/identity/OAuthCallback.h"

#include <QUrlQuery>

namespace vl {

std::optional<OAuthCallback> parseOAuthCallback(const QUrl& url)
{
    if (!url.isValid() || !url.hasQuery())
        return std::nullopt;
    const QUrlQuery query(url);
    std::optional<QString> ticket;
    std::optional<QString> email;
    const auto items = query.queryItems(QUrl::FullyDecoded);
    for (const auto& [key, value] : items) {
        if (key == QLatin1StringView("t") && !ticket)
            ticket = value;
        else if (key == QLatin1StringView("e") && !email)
            email = value;
    }
    if (!ticket || !email)
        return std::nullopt;
    return OAuthCallback{*ticket, *email};
}

} // namespace vl
