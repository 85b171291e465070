#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>

namespace vl {

// One HTTP answer, or the decision to close the connection without one.
struct Reply {
    int status = 200;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    bool drop = false;

    static Reply json(const QJsonObject& object, int status = 200);
    static Reply html(const QByteArray& page, int status = 200);
    static Reply redirect(const QByteArray& location);
    static Reply dropped();

    Reply& withHeader(const QByteArray& name, const QByteArray& value);
    // The bytes on the wire; `keepAlive` decides the Connection header.
    QByteArray serialize(bool keepAlive) const;
};

} // namespace vl
