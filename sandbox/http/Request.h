#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrlQuery>

namespace vl {

// One HTTP request, copied out of the server's own request object so that it can outlive the
// call that received it (a slow answer is computed after a delay).
struct Request {
    QByteArray method;
    QString path;
    QString rawQuery;
    QUrlQuery query;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    // "http://host:port" as the client addressed us, for links that point back at the sandbox.
    QString origin;
    // Values of the `{name}` segments of the matched route.
    QHash<QString, QString> params;

    // The first header of that name, compared case-insensitively.
    QByteArray header(QByteArrayView name) const;
    // A query item, percent-decoded; empty when absent.
    QString queryValue(const QString& key) const;
    // The body as a JSON object; empty when the body is not one.
    QJsonObject json() const;
    // The token of an "Authorization: Bearer ..." header; empty when there is none.
    QString bearer() const;
    QString cookie(QByteArrayView name) const;
};

} // namespace vl
