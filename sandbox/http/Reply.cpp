#include "sandbox/http/Reply.h"

#include <QJsonDocument>

namespace vl {

namespace {

QByteArray reason(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 201:
        return "Created";
    case 204:
        return "No Content";
    case 302:
        return "Found";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 409:
        return "Conflict";
    case 413:
        return "Payload Too Large";
    case 429:
        return "Too Many Requests";
    case 500:
        return "Internal Server Error";
    case 502:
        return "Bad Gateway";
    case 503:
        return "Service Unavailable";
    case 504:
        return "Gateway Timeout";
    default:
        return "Status";
    }
}

} // namespace

Reply Reply::json(const QJsonObject& object, int status)
{
    Reply reply;
    reply.status = status;
    reply.body = QJsonDocument(object).toJson(QJsonDocument::Compact);
    reply.withHeader("Content-Type", "application/json; charset=utf-8");
    return reply;
}

Reply Reply::html(const QByteArray& page, int status)
{
    Reply reply;
    reply.status = status;
    reply.body = page;
    reply.withHeader("Content-Type", "text/html; charset=utf-8");
    return reply;
}

Reply Reply::redirect(const QByteArray& location)
{
    Reply reply;
    reply.status = 302;
    reply.withHeader("Location", location);
    return reply;
}

Reply Reply::dropped()
{
    Reply reply;
    reply.drop = true;
    return reply;
}

Reply& Reply::withHeader(const QByteArray& name, const QByteArray& value)
{
    headers.append(qMakePair(name, value));
    return *this;
}

QByteArray Reply::serialize(bool keepAlive) const
{
    QByteArray out = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reason(status) + "\r\n";
    for (const auto& [name, value] : headers)
        out += name + ": " + value + "\r\n";
    out += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
    out += keepAlive ? "Connection: keep-alive\r\n" : "Connection: close\r\n";
    out += "\r\n";
    out += body;
    return out;
}

} // namespace vl
