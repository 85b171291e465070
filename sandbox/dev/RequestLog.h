#pragma once

#include "sandbox/http/Request.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

namespace vl {

// The last requests received, for tests that check exactly what the client sent.
class RequestLog {
public:
    static constexpr qsizetype capacity = 50;

    void record(const Request& request);
    // Newest first.
    QJsonArray toJson() const;

private:
    QList<QJsonObject> m_entries;
};

} // namespace vl
