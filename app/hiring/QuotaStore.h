#pragma once

#include <QDateTime>
#include <QObject>
#include <optional>

namespace vl {

// The employer's weekly quota of opened applications, as last read from the service.
class QuotaStore : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const std::optional<QDateTime>& lastFetched() const { return m_lastFetched; }
    bool probing() const { return m_probing; }

    // Forgets everything: an empty quota, never fetched, not probing.
    void reset();

Q_SIGNALS:
    void changed();

private:
    std::optional<QDateTime> m_lastFetched;
    bool m_probing = false;
};

} // namespace vl
