#pragma once

#include "sandbox/http/Reply.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <optional>

namespace vl {

// A misbehaviour switched on for one method and exact path, whether or not a route exists there.
struct Fault {
    enum class Mode { Slow, Html, Status, Drop };
    Mode mode = Mode::Slow;
    // Slow: seconds before the normal answer, at most longestDelay.
    static constexpr double longestDelay = 600;
    double delay = 0;
    // Status: the HTTP status and what the body holds: "html", "envelope" or "ok".
    int status = 500;
    QString body;
    // Status with an envelope body: its error code.
    QString code;

    // The canned answer of every mode but Slow.
    Reply reply() const;
};

class FaultTable {
public:
    void set(const QByteArray& method, const QString& path, const Fault& fault);
    void clear(const QByteArray& method, const QString& path);
    void clearAll();
    std::optional<Fault> find(const QByteArray& method, const QString& path) const;

private:
    static QString key(const QByteArray& method, const QString& path);
    QHash<QString, Fault> m_faults;
};

} // namespace vl
