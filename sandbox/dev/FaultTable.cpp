#include "sandbox/dev/FaultTable.h"

#include <QJsonObject>

namespace vl {

namespace {

// What a proxy or a maintenance switch puts in front of the service instead of JSON.
const QByteArray maintenancePage =
    "<!DOCTYPE html>\n<html><head><title>Velmora</title></head><body><h1>We'll be right "
    "back</h1><p>The service is being updated. Please try again in a few minutes.</p></body>"
    "</html>\n";

QByteArray errorPage(int status)
{
    return "<!DOCTYPE html>\n<html><head><title>Error " + QByteArray::number(status) +
           "</title></head><body><h1>Error " + QByteArray::number(status) +
           "</h1><p>The server could not answer this request.</p></body></html>\n";
}

} // namespace

Reply Fault::reply() const
{
    switch (mode) {
    case Mode::Drop:
        return Reply::dropped();
    case Mode::Html:
        return Reply::html(maintenancePage);
    case Mode::Status:
        if (body == QLatin1String("envelope"))
            return Reply::json(
                {{QStringLiteral("ok"), false},
                 {QStringLiteral("error"), code.isEmpty() ? QStringLiteral("generic") : code}},
                status);
        if (body == QLatin1String("ok"))
            return Reply::json({{QStringLiteral("ok"), true}}, status);
        return Reply::html(errorPage(status), status);
    case Mode::Slow:
        break;
    }
    return Reply::html(errorPage(500), 500);
}

QString FaultTable::key(const QByteArray& method, const QString& path)
{
    return QString::fromLatin1(method.toUpper()) + u' ' + path;
}

void FaultTable::set(const QByteArray& method, const QString& path, const Fault& fault)
{
    m_faults.insert(key(method, path), fault);
}

void FaultTable::clear(const QByteArray& method, const QString& path)
{
    m_faults.remove(key(method, path));
}

void FaultTable::clearAll()
{
    m_faults.clear();
}

std::optional<Fault> FaultTable::find(const QByteArray& method, const QString& path) const
{
    const auto it = m_faults.constFind(key(method, path));
    if (it == m_faults.cend())
        return std::nullopt;
    return *it;
}

} // namespace vl
