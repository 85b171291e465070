#pragma once

#include <QObject>

namespace vl {

// The unread counters the sidebar and the launcher badge show.
class InboxState : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    int unread() const { return m_unread; }
    void setUnread(int unread);
    // No identity left to count for: everything reads zero.
    void reset() { setUnread(0); }

Q_SIGNALS:
    void unreadChanged(int unread);

private:
    int m_unread = 0;
};

} // namespace vl
