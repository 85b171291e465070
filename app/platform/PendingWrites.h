#pragma once

#include <QCoroTask>
#include <QObject>
#include <chrono>

namespace vl {

// Counts the work that must reach the secure store before the process ends: writes, and the
// steps of a sign-out. Whoever starts such work still awaits it; the count is for the one who
// ends the process, who may not know what a click or a cookie started a moment before.
class PendingWrites : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Runs `work`, counted while it runs. The task may be awaited or dropped: it runs to its end
    // either way.
    QCoro::Task<> guard(QCoro::Task<> work);
    int underWay() const { return m_underWay; }
    // Ends when nothing is under way, or once `bound` has passed; true when everything ended.
    QCoro::Task<bool> settle(std::chrono::milliseconds bound);

Q_SIGNALS:
    void idle();

private:
    int m_underWay = 0;
};

} // namespace vl
