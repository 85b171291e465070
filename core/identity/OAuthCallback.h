#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace vl {

// What the browser sign-in hands back through the velm: link.
struct OAuthCallback {
    QString ticket;
    QString email;
};

// The first `t` is the ticket and the first `e` the address; without either there is nothing.
std::optional<OAuthCallback> parseOAuthCallback(const QUrl& url);

} // namespace vl
