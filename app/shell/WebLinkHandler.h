#pragma once

#include <QUrl>

namespace vl {

class MacNav;
class Router;

// Web links handed to the client from outside: a vacancy path opens in the board, whichever of
// the service's hosts (www. or not) the link names. Everything else is left alone.
class WebLinkHandler {
public:
    WebLinkHandler(Router& router, MacNav& nav);

    // Whether the link opened a listing.
    bool open(const QUrl& url);

private:
    Router& m_router;
    MacNav& m_nav;
};

} // namespace vl
