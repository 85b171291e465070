#pragma once

#include <QObject>

namespace vl {

// The one place a call lives. For now it only knows that the application has booted, which is
// when an incoming call may be shown.
class CallCenter : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool booted() const { return m_booted; }
    void setBooted() { m_booted = true; }

private:
    bool m_booted = false;
};

} // namespace vl
