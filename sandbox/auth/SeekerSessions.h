#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace vl {

class Clock;
class Store;
struct Request;

// The job seeker's session, carried by the cookie `vl_cand` on the web origin.
class SeekerSessions {
public:
    static constexpr QByteArrayView cookieName = "vl_cand";
    static constexpr qint64 lifetime = 30 * 86400;

    SeekerSessions(Store& store, const Clock& clock);

    QString open(qint64 seeker);
    // The seeker whose session cookie the request carries.
    std::optional<qint64> seekerOf(const Request& request) const;
    void close(const Request& request);

    // Set-Cookie values that start and end a session.
    static QByteArray setCookie(const QString& token);
    static QByteArray clearCookie();

private:
    Store& m_store;
    const Clock& m_clock;
};

} // namespace vl
