#pragma once

#include "sandbox/http/Reply.h"
#include "sandbox/http/Request.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace vl {

using Handler = std::function<Reply(const Request&)>;

// Method and path to handler. A pattern is an absolute path whose segments are literals or
// `{name}` placeholders; a literal segment beats a placeholder where both match.
class Router {
public:
    void add(const QByteArray& method, const QString& pattern, Handler handler);
    // Runs the matching handler, or answers the not-found envelope.
    Reply dispatch(Request request) const;

private:
    struct Route {
        QByteArray method;
        QStringList segments;
        Handler handler;
    };
    static int match(const Route& route, const QStringList& segments, Request* request);

    QList<Route> m_routes;
};

} // namespace vl
