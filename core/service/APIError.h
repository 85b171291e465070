#pragma once

#include "core/l10n/Lang.h"

#include <QString>

namespace vl {

// The one failure type of every service operation.
class APIError {
public:
    enum class Kind {
        server,  // a valid envelope with ok false, or one without data; carries the code
        http,    // the body was no valid envelope for the expected type; carries the status
        network, // no HTTP answer at all: connection failure, time-out, cancellation
    };

    static APIError server(QString code) { return APIError(Kind::server, std::move(code), 0); }
    static APIError http(int status) { return APIError(Kind::http, {}, status); }
    static APIError network() { return APIError(Kind::network, {}, 0); }

    Kind kind() const { return m_kind; }
    const QString& code() const { return m_code; }
    int status() const { return m_status; }
    bool isServer(QLatin1StringView code) const { return m_kind == Kind::server && m_code == code; }

    // The words a screen shows for this failure.
    QString message(Lang lang) const;

    bool operator==(const APIError&) const = default;

private:
    APIError(Kind kind, QString code, int status)
        : m_kind(kind)
        , m_code(std::move(code))
        , m_status(status)
    {
    }

    Kind m_kind;
    QString m_code;
    int m_status;
};

} // namespace vl
