#include "app/shell/WebLinkHandler.h"

#include "app/shell/MacNav.h"
#include "app/shell/Router.h"
#include "core/navigation/WebLink.h"

namespace vl {

WebLinkHandler::WebLinkHandler(Router& router, MacNav& nav)
    : m_router(router)
    , m_nav(nav)
{
}

bool WebLinkHandler::open(const QUrl& url)
{
    const auto ref = vacancyRefOfWebLink(url);
    if (!ref)
        return false;
    m_nav.setSection(MacSection::vacancies);
    m_router.selectJob(*ref);
    return true;
}

} // namespace vl
