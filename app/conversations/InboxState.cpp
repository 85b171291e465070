#include "app/conversations/InboxState.h"

namespace vl {

void InboxState::setUnread(int unread)
{
    if (unread == m_unread)
        return;
    m_unread = unread;
    Q_EMIT unreadChanged(unread);
}

} // namespace vl
